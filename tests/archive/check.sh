#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Converts an archive in shards, as docs/BATCH.md tells: with a batch engine of one machine, made here, and with GNU
# parallel. In each, two tasks are killed in the middle, and the commands given again. In the end, each lesson must have
# been converted, once and by one shard.
#
#   check.sh LESSONCONV [LESSONS]      the command's file, and how many lessons
#
# Needs slurmctld, slurmd, munged, parallel and jq. All that it starts and writes goes with it.
set -euo pipefail
source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
lessonconv=$(realpath "$1")
count=${2:-5000}
PATH=$(dirname "$lessonconv"):/usr/sbin:/sbin:$PATH
export LC_ALL=C.UTF-8 LANGUAGE=
work=$(mktemp -d)
daemons=()

finish() {
    [ -z "${SLURM_CONF:-}" ] || scancel --full --user="$(id -un)" 2>/dev/null || true
    local daemon
    for daemon in "${daemons[@]}"; do
        kill "$daemon" 2>/dev/null && wait "$daemon" 2>/dev/null || true
    done
    rm -rf "$work"
}
trap finish EXIT

fail() {
    echo "$*" >&2
    exit 1
}

# The commands that docs/BATCH.md gives under a heading.
commands() {
    awk -v heading="### $1" '/^#/ { here = $0 == heading } here && /^    / { print substr($0, 5) }' \
        "$source_folder/docs/BATCH.md"
}

# wait_until SECONDS COMMAND...
wait_until() {
    local end=$((SECONDS + $1))
    until "${@:2}" >/dev/null 2>&1; do
        [ $SECONDS -lt $end ] || fail "waited too long for: ${*:2}"
        sleep 0.2
    done
}

# Seeds of each form that an archive may have, on several levels and at its root.
make_lessons() {
    local seeds=() example form name n
    mkdir -p seeds lessons
    for example in geometry mindmaps language; do
        for form in json zqtx iwb; do
            name=seeds/$example.$form
            lessonconv convert "$source_folder/examples/$example" "$name" --quiet
            seeds+=("$name")
        done
    done
    cp -r "$source_folder/examples/geometry" seeds/folder
    seeds+=(seeds/folder "$source_folder/examples/rawxml/standard.xml")
    for ((n = 0; n < count; n++)); do
        local seed=${seeds[n % ${#seeds[@]}]} folder=lessons
        [ $((n % 10)) -eq 0 ] || folder=lessons/term$((n % 3))/week$((n / 400))
        mkdir -p "$folder"
        name=$(basename "$seed")
        cp -r "$seed" "$folder/lesson$n${name#"${name%%.*}"}"
    done
    find lessons -mindepth 1 -name 'lesson*' -printf '%P\n' | sed 's/\.[a-z]*$//' | sort >expected
    [ "$(wc -l <expected)" -eq "$count" ] || fail "the archive isn't what was meant"
}

# The process of a task, which works in this folder as nobody else does.
task() {
    local process
    for process in /proc/[0-9]*; do
        if [ "$(readlink "$process/cwd" 2>/dev/null)" = "$PWD" ] \
            && tr '\0' ' ' <"$process/cmdline" 2>/dev/null | grep -q "^lessonconv convert .*--shard $1/16 "; then
            basename "$process"
            return
        fi
    done
    return 1
}

has_done() {
    [ "$(wc -l 2>/dev/null <"converted/.lessonconv-done-$1of16")" -ge "$2" ]
}

# Kills a task as soon as it has converted some lessons.
kill_in_the_middle() {
    wait_until 600 has_done "$1" 20
    kill -KILL "$(task "$1")"
}

check_results() {
    eval "$(commands 'What became of all')" >summary || { cat summary; fail "$1: the report tells of failures"; }
    head -n 1 summary
    jq -r '.lessons[].output' all.json | sed 's/\.iwb$//' >told
    sort told | diff - expected || fail "$1: the report has other lessons"
    (cd converted && find . -name '*.iwb' -size +0 -printf '%P\n') | sed 's/\.iwb$//' | sort | diff - expected \
        || fail "$1: there are other results"
    # A journal has a line for each time that a lesson was done.
    (cd converted && grep -ho '"output":"[^"]*"' .lessonconv-done-* | sort | uniq -d) >again
    [ ! -s again ] || { cat again; fail "$1: lessons were converted twice"; }
    [ -z "$(find converted -name '.lessonconv-*' ! -name '.lessonconv-done-*')" ] || fail "$1: something was left behind"
    rm -rf converted reports all.json
}

# munge tells who sends a message, slurmctld hands out tasks, and slurmd starts them: each in this folder and on
# loopback only.
start_engine() {
    local host port
    host=$(hostname -s)
    port=$((20000 + RANDOM % 20000))
    mkdir -m 700 engine engine/munge engine/state engine/spool
    head -c 128 /dev/urandom >engine/munge/key
    chmod 400 engine/munge/key
    cat >engine/slurm.conf <<CONF
ClusterName=archive
SlurmctldHost=$host(127.0.0.1)
SlurmctldPort=$port
SlurmdPort=$((port + 1))
SlurmUser=$(id -un)
SlurmdUser=$(id -un)
AuthType=auth/munge
AuthInfo=socket=$PWD/engine/munge/socket
CryptoType=crypto/munge
StateSaveLocation=$PWD/engine/state
SlurmdSpoolDir=$PWD/engine/spool
SlurmctldPidFile=$PWD/engine/slurmctld.pid
SlurmdPidFile=$PWD/engine/slurmd.pid
SlurmctldLogFile=$PWD/engine/slurmctld.log
SlurmdLogFile=$PWD/engine/slurmd.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
MpiDefault=none
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
SlurmdParameters=config_overrides
ReturnToService=2
MinJobAge=300
NodeName=$host NodeAddr=127.0.0.1 CPUs=8 State=UNKNOWN
PartitionName=all Nodes=ALL Default=YES MaxTime=INFINITE State=UP
CONF
    export SLURM_CONF=$PWD/engine/slurm.conf
    munged --foreground --force --key-file="$PWD/engine/munge/key" --socket="$PWD/engine/munge/socket" \
        --pid-file="$PWD/engine/munge/pid" --log-file="$PWD/engine/munge/log" --seed-file="$PWD/engine/munge/seed" 2>/dev/null &
    daemons+=($!)
    wait_until 20 test -S engine/munge/socket
    slurmctld -D -i 2>/dev/null &
    daemons+=($!)
    slurmd -D 2>/dev/null &
    daemons+=($!)
    wait_until 60 has_idle_machine
}

has_idle_machine() {
    sinfo --noheader --format=%T | grep -q idle
}

no_tasks() {
    [ -z "$(squeue --noheader)" ]
}

archive_by_engine() {
    start_engine
    eval "$(commands 'A batch engine')" >/dev/null
    kill_in_the_middle 1
    kill_in_the_middle 6
    wait_until 3600 no_tasks
    local left
    left=$(lessonconv report reports/*.json) && fail "nothing was killed"
    grep -q 'no report of shards 1, 6 of 16' <<<"$left" || fail "other shards have no report: $left"
    eval "$(commands 'A batch engine')" >/dev/null
    wait_until 3600 no_tasks
    check_results "batch engine"
}

archive_by_parallel() {
    echo : >machines # this one
    export PARALLEL_HOME=$work/parallel
    mkdir -p "$PARALLEL_HOME"
    touch "$PARALLEL_HOME/will-cite"
    eval "$(commands 'GNU parallel')" 2>/dev/null &
    local run=$!
    kill_in_the_middle 2
    kill_in_the_middle 3
    ! wait "$run" || fail "nothing was killed"
    eval "$(commands 'GNU parallel')"
    check_results "GNU parallel"
}

cd "$work"
make_lessons
archive_by_engine
archive_by_parallel
