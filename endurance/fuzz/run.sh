#!/bin/bash
# Feeds every fuzz program with made-up input, beginning with the kept corpus, and prints one line for each.
#   endurance/fuzz/run.sh RUNS   non-zero on any failure; the input that failed is kept in build/fuzz
#   endurance/fuzz/run.sh keep   adds what was found to the corpus, as far as it reaches other code
# A run begins with the corpus alone, so that the same sources give the same run.
# The corpus is a text for each program: one input a line, in hexadecimal digits.
set -euo pipefail
cd "$(dirname "$0")/../.."
source tools/build.sh
mkdir -p build/fuzz
build_preset native fuzz > build/fuzz/build.log 2>&1 || { cat build/fuzz/build.log; exit 1; }

# unpack TEXT FOLDER: one file for each line
unpack() { perl -ne 'chomp; open my $input, ">", "'"$2"'/kept$."; print $input pack "H*", $_' "$1"; }

# pack FOLDER: the way back, to standard output
pack() { find "$1" -type f -exec sh -c 'od -An -v -tx1 "$1" | tr -d " \n"; echo' - {} \; | sort -u; }

status=0
for source in endurance/fuzz/*Fuzz.cpp; do
    subject=$(basename "$source" Fuzz.cpp)
    program=build/native/fuzz_$subject
    kept=endurance/fuzz/corpus/$subject.hex
    found=build/fuzz/$subject
    log=build/fuzz/$subject.log
    [ "$1" = keep ] || rm -rf "$found"
    mkdir -p "$found"
    [ ! -e "$kept" ] || unpack "$kept" "$found"
    if [ "$1" = keep ]; then
        rm -rf "$found.least"
        mkdir -p "$found.least" endurance/fuzz/corpus
        "$program" -merge=1 -use_counters=0 -verbosity=0 "$found.least" "$found" > "$log" 2>&1
        pack "$found.least" > "$kept"
        continue
    fi
    start=$SECONDS
    if "$program" -runs="$1" -seed=1 -max_len=256 -verbosity=0 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/$subject-" "$found" > "$log" 2>&1; then
        runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
        printf '%-12s %9d runs %5d s\n' "$subject" "$runs" $((SECONDS - start))
    else
        status=1
        printf '%-12s FAILED\n' "$subject"
        grep -E 'Does not hold|ERROR|runtime error|Test unit written' "$log"
    fi
done
exit $status
