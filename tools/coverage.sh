#!/bin/bash
# Prints how much of the program its tests reach: branches of the portable parts (native), lines of the rest
# (under Wine). Below each figure stand the places that are not reached.
#   tools/coverage.sh [native|wine]
set -euo pipefail
cd "$(dirname "$0")/.."
exec < /dev/null
tools/install.sh
source tools/prefix.sh
out=build/coverage
mkdir -p "$out"

cover_native() {
    local build=build/coverage-native
    cmake --preset native -B "$build" -DCMAKE_CXX_FLAGS="-fprofile-instr-generate -fcoverage-mapping" > /dev/null
    cmake --build "$build" -j "$(nproc)" --target native_tests > "$out/native.log"
    LLVM_PROFILE_FILE=$out/native.profraw "$build/native_tests" >> "$out/native.log" 2>&1
    llvm-profdata merge -o "$out/native.profdata" "$out/native.profraw"
    llvm-cov export "$build/native_tests" -instr-profile="$out/native.profdata" \
        -ignore-filename-regex='/(tests|googletest|usr)/' > "$out/native.json"
    python3 -B tools/coverage.py branches "$out/native.json"
}

# A program that is ended from outside leaves no counts: only whole runs count.
cover_wine() (
    local build=build/coverage-wine status=0
    cmake --preset debug -B "$build" -DCMAKE_CXX_FLAGS="--coverage" -DCMAKE_CXX_FLAGS_DEBUG="-O0 -g1" > /dev/null
    cmake --build "$build" -j "$(nproc)" --target VWizard standin unit_tests e2e_tests > "$out/wine.log"
    find "$build" -name '*.gcda' -delete
    use_prefix coverage null
    trap end_prefix EXIT
    # The counts are written to paths of this computer, whatever drive is the current one.
    export GCOV_PREFIX=Z: VWIZARD_EXE=$PWD/$build/VWizard.exe STANDIN_EXE=$PWD/$build/standin.exe
    for program in unit_tests e2e_tests; do
        wine "$build/$program.exe" > "$out/$program.log" 2>&1 || status=$?
        [ $status = 0 ] || echo "$program ended with $status, see $out/$program.log"
    done
    rm -rf "$out/gcov"
    mkdir "$out/gcov"
    find "$PWD/$build" -name '*.gcda' -not -path '*googletest*' |
        (cd "$out/gcov" && xargs i686-w64-mingw32-gcov-posix --json-format --preserve-paths > ../gcov.log 2>&1)
    python3 -B tools/coverage.py lines "$out/gcov" "$PWD" "$(sed -n '/^set(PORTABLE_SOURCES/,/^)/p' CMakeLists.txt)"
)

for part in ${1:-native wine}; do "cover_$part"; done
