#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs what README.md shows behind "$", in its order and in one shell, and compares what comes with what stands there.
# For that, what was built is installed as the README tells.
#
#   check.sh SOURCE BUILD WORK CMAKE
set -u
source_folder=$1 build=$2 work=$3 cmake=$4
rm -rf "$work"
mkdir -p "$work/home" "$work/lessons"
export HOME=$work/home LC_ALL=C.UTF-8 LANGUAGE=
"$cmake" --install "$build" --prefix "$HOME/.local" >/dev/null || exit 1
export PATH=$HOME/.local/bin:$PATH
cd "$work/lessons" || exit 1
cp -r "$source_folder/examples" .

failures=0 last=0
command= expected=
run_command() {
    [ -n "$command" ] || return 0
    eval "(exit $last); $command" >"$work/output" 2>&1 </dev/null
    last=$?
    if [[ $command == cmake* ]]; then
        [ $last -eq 0 ] || { cat "$work/output"; failures=$((failures + 1)); }
    elif ! diff <(printf '%s' "$expected") "$work/output" >"$work/difference"; then
        printf '$ %s\n' "$command"
        cat "$work/difference"
        failures=$((failures + 1))
    fi
    command= expected=
}
while IFS= read -r line; do
    case $line in
        '    $ '*) run_command; command=${line#'    $ '} ;;
        '    '*) expected+=${line#'    '}$'\n' ;;
        *) run_command; expected= ;;
    esac
done <"$source_folder/README.md"
run_command
[ $failures -eq 0 ]
