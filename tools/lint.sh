#!/bin/bash
# Static checks; each is a function of the sources alone, so what passed once is not checked again.
#   tools/lint.sh format | layers | cppcheck | tidy
# Both presets must have been built (their dependency logs tell which headers a source includes).
set -euo pipefail
cd "$(dirname "$0")/.."

folders=()
for folder in win app wizard shell ftw ndw tools benchmark endurance tests; do
    [ -d "$folder" ] && folders+=("$folder")
done
sources() { find "${folders[@]}" -name '*.cpp' "$@" | sort; }

check_format() { sources -o -name '*.h' | xargs clang-format --dry-run -Werror; }

# Each folder of the program includes itself and what stands below it; the start alone stands above the wizards.
check_layers() {
    local row folder wrong=0
    for row in "win" "app win" "wizard app win res" "shell wizard app win" "ftw shell wizard app win" "ndw shell wizard app win"; do
        folder=${row%% *}
        ! grep -n '#include "' "$folder"/*.cpp "$folder"/*.h | grep -v '^app/modMain.cpp' |
            grep -vE "#include \"(${row// /|})/" || wrong=1
    done
    return $wrong
}

check_cppcheck() {
    mkdir -p build/cppcheck
    sources -not -path 'tests/*' | cppcheck --file-list=- --cppcheck-build-dir=build/cppcheck -j "$(nproc)" \
        --std=c++20 --platform=win32W --enable=warning,performance,portability --inline-suppr \
        --suppress=missingIncludeSystem --library=googletest --error-exitcode=1 --quiet -I . \
        -DUNICODE -D_UNICODE -D_WIN32 -DWIN32_LEAN_AND_MEAN -DSTDMETHODIMP=HRESULT '-DSTDMETHODIMP_(type)=type'
}

gcc=/usr/lib/gcc/i686-w64-mingw32/12-posix/include/c++
tidy_flags=(--target=i686-w64-mingw32 -nostdinc++
    -isystem "$gcc" -isystem "$gcc/i686-w64-mingw32" -isystem "$gcc/backward"
    -isystem /usr/i686-w64-mingw32/include -isystem /usr/src/googletest/googletest/include
    -std=c++20 -DUNICODE -D_UNICODE -DWIN32_LEAN_AND_MEAN -DNOMINMAX -DWINVER=0x0601 -D_WIN32_WINNT=0x0601
    -I . -I build/debug/generated -I res)

# Prints "SOURCE KEY" for each source; the key changes with the source, its own headers and the checks.
tidy_keys() {
    local root checks
    root=$PWD/
    checks=$({ cat .clang-tidy; echo "${tidy_flags[@]}"; clang-tidy --version; } | sha256sum | cut -c1-16)
    # A source compiled twice has two entries of the same headers: the first is enough. The release preset is
    # always built whole, so its entries are of today.
    declare -A headers
    local line source=
    while read -r line; do
        line=${line/#..\/..\//$root} # as a compiler cache gives it
        case $line in
        *'#deps'*) source= ;;
        "$root"*.cpp) source=${line#"$root"}; [ -z "${headers[$source]+x}" ] && headers[$source]=$source || source= ;;
        "$root"*.h) [ -z "$source" ] || headers[$source]+=" ${line#"$root"}" ;;
        esac
    done < <(ninja -C build/release -t deps 2> /dev/null; ninja -C build/debug -t deps 2> /dev/null)
    for source in $(sources); do
        # shellcheck disable=SC2086
        echo "$source $checks$(cat ${headers[$source]:-$source} 2> /dev/null | sha256sum | cut -c1-32)"
    done
}

tidy_one() {
    local source=$1 stamp=$tidy_passed/$2
    [ -e "$stamp" ] && return 0
    clang-tidy --quiet "$source" -- "${tidy_flags[@]}" 2> "build/tidy-$2.err" && touch "$stamp"
}

# The tests are left out, as from cppcheck: their macros cost more time than all the program's sources.
# What the last commit or nobody yet has committed comes first: there a fault is most likely.
check_tidy() {
    export tidy_passed=${XDG_CACHE_HOME:-${HOME:-$PWD/build}/.cache}/vwizard-tidy
    mkdir -p "$tidy_passed"
    local keys changed
    keys=$(tidy_keys | grep -v '^tests/')
    changed=$(git diff --name-only HEAD~1 2> /dev/null || true)
    export -f tidy_one
    export flags_text="${tidy_flags[*]}"
    { grep -F "$changed" <<< "$keys" || true; echo "$keys"; } | awk '!seen[$0]++' |
        xargs -P "$(nproc)" -L 1 bash -c 'read -ra tidy_flags <<< "$flags_text"; tidy_one "$@"' tidy
}

"check_$1"
