# Sourced by the scripts beside it: names each step, and stops at the first one that fails and says which.
set -Eeuo pipefail
script=$(basename "$0")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

current_step=start
trap 'echo "$script: failed in step: $current_step" >&2' ERR

# Objects are kept between builds and between clones, so that only what changed is compiled.
export CMAKE_C_COMPILER_LAUNCHER=$PWD/scripts/compiler_cache CMAKE_CXX_COMPILER_LAUNCHER=$PWD/scripts/compiler_cache
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros

step() {
    current_step=$1
    echo "== $1"
}

# Configures and builds a preset: all of it, or the targets that are named.
build_preset() {
    local preset=$1 output
    shift
    output=$(cmake --preset "$preset" 2>&1) || { echo "$output" >&2; return 1; }
    output=$(cmake --build --preset "$preset" ${*:+--target "$@"} 2>&1) || { echo "$output" >&2; return 1; }
}
