# shellcheck shell=bash
# Building a preset; to be sourced from the root of the repository.

# One checkout finds what another has compiled: paths below the root count as relative ones.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

# build_preset PRESET [TARGET...]   configures when that is still to be done and builds
build_preset() {
    local preset=$1 target targets=()
    shift
    for target in "$@"; do targets+=(--target "$target"); done
    [ -e "build/$preset/build.ninja" ] || cmake --preset "$preset" > /dev/null
    cmake --build --preset "$preset" -j "$(nproc)" "${targets[@]}"
}
