#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the benchmarks and runs them: items, growth, drawings, whole lessons. At the end stands a table of all marks.
# Takes two minutes of a quiet machine besides building. With a word: runs only the benchmark of that name, and hands
# it the other arguments.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/.ci/setup"
install_missing_packages libbenchmark-dev
build_project "$here" bench itembench growthbench drawbench lessonbench >&2
LESSON_MARKS=$(mktemp)
export LESSON_MARKS
trap 'rm -f "$LESSON_MARKS"' EXIT

# What came out, beside what it may be at most.
print_table() {
    awk -F '\t' '{ printf "%-62s %6.2f %6.2f  %-6s  %s\n", $1, $2, $3, $2 <= $3 ? "met" : "MISSED", $4 }' "$LESSON_MARKS"
}

if [ $# -gt 0 ]; then
    "$here/build-bench/bin/$1" "${@:2}"
    print_table
    exit
fi
for name in itembench growthbench drawbench; do
    "$here/build-bench/bin/$name" --benchmark_min_time=0.1
done
"$here/build-bench/bin/lessonbench" 300 1000
printf '\n%s, %s processors, %s, %s\n' "$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1)" "$(nproc)" \
    "$(sed -n 's/^PRETTY_NAME="\(.*\)"/\1/p' /etc/os-release)" "$(c++ --version | head -n 1)"
printf '%-62s %6s %6s\n' 'what, as a ratio unless it says otherwise' 'now' 'mark'
print_table
