#!/bin/bash
# Prints how much of the program its tests reach: branches of the portable parts (native), lines of the rest
# (under Wine). Below each figure stand the places that are not reached and why. Fails when a figure is lower
# than wanted or a test fails.
#   tools/coverage.sh [native|wine]
set -euo pipefail
cd "$(dirname "$0")/.."
exec < /dev/null
tools/install.sh
source tools/prefix.sh
out=build/coverage
rm -rf "$out"
mkdir -p "$out"
portable=$(sed -n '/^set(PORTABLE_SOURCES/,/^)/p' CMakeLists.txt)

# run NAME COMMAND...: a test program, its words kept for whoever wants to know why it failed
run() {
    local log=$out/$1.log
    shift
    "$@" > "$log" 2>&1 || failed "$* ended with $?, see $log"
}

failed() {
    echo "$1"
    touch "$out/failed"
}

cover_native() {
    local build=build/coverage-native
    cmake --preset native -B "$build" -DCMAKE_CXX_FLAGS="-fprofile-instr-generate -fcoverage-mapping" > /dev/null
    cmake --build "$build" -j "$(nproc)" --target native_tests > "$out/build-native.log"
    LLVM_PROFILE_FILE=$out/native.profraw run native_tests "$build/native_tests"
    llvm-profdata merge -o "$out/native.profdata" "$out/native.profraw"
    llvm-cov export "$build/native_tests" -instr-profile="$out/native.profdata" \
        -ignore-filename-regex='/(tests|tools|googletest|usr)/' > "$out/native.json" 2> "$out/native.warnings"
    python3 -B tools/coverage.py branches "$out/native.json" || failed "the branches are too few"
}

# A program that is ended from outside leaves no counts: the walks close the wizard.
cover_wine() (
    local build=build/coverage-wine program
    cmake --preset debug -B "$build" -DCMAKE_CXX_FLAGS="--coverage" -DCMAKE_CXX_FLAGS_DEBUG="-O0 -g1" > /dev/null
    cmake --build "$build" -j "$(nproc)" --target VWizard standin dialogs samples unit_tests e2e_tests \
        > "$out/build-wine.log"
    find "$build" -name '*.gcda' -delete
    use_prefix coverage null
    trap end_prefix EXIT
    # The counts are written to paths of this computer, whatever drive is the current one.
    export GCOV_PREFIX=Z: VWIZARD_EXE=$PWD/$build/VWizard.exe STANDIN_EXE=$PWD/$build/standin.exe
    for program in unit_tests e2e_tests; do run $program wine "$build/$program.exe"; done
    mkdir "$out/gcov"
    find "$PWD/$build" -name '*.gcda' -not -path '*googletest*' |
        (cd "$out/gcov" && xargs i686-w64-mingw32-gcov-posix --json-format --preserve-paths > ../gcov.log 2>&1)
    python3 -B tools/coverage.py lines "$out/gcov" "$portable" || failed "the lines are too few"
)

for part in ${1:-native wine}; do "cover_$part"; done
[ ! -e "$out/failed" ]
