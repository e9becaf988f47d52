#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the benchmarks and runs them: items, growth, drawings, whole lessons. Takes some minutes. With a word: runs only
# the benchmark of that name, and hands it the other arguments.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/.ci/setup"
install_missing_packages libbenchmark-dev
build_project "$here" bench >&2
if [ $# -gt 0 ]; then
    exec "$here/build-bench/bin/$1" "${@:2}"
fi
for name in itembench growthbench drawbench lessonbench; do
    "$here/build-bench/bin/$name"
done
