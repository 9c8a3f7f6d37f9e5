#!/bin/bash
# Feeds every fuzz program with made-up input and prints one line for each.
#   endurance/fuzz/run.sh RUNS   non-zero on any failure; the input that failed is kept in build/fuzz
# Each run makes its inputs anew from one seed, so that the same sources give the same run.
set -euo pipefail
cd "$(dirname "$0")/../.."
source tools/build.sh
mkdir -p build/fuzz
build_preset native fuzz > build/fuzz/build.log 2>&1 || { cat build/fuzz/build.log; exit 1; }

status=0
for source in endurance/fuzz/*Fuzz.cpp; do
    subject=$(basename "$source" Fuzz.cpp)
    program=build/native/fuzz_$subject
    log=build/fuzz/$subject.log
    start=$SECONDS
    if "$program" -runs="$1" -seed=1 -max_len=256 -verbosity=0 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/$subject-" > "$log" 2>&1; then
        runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
        printf '%-12s %9d runs %5d s\n' "$subject" "$runs" $((SECONDS - start))
    else
        status=1
        printf '%-12s FAILED\n' "$subject"
        grep -E 'Does not hold|ERROR|runtime error|Test unit written' "$log"
    fi
done
exit $status
