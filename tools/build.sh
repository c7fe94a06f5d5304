#!/usr/bin/env bash
# tools/build.sh PRESET [TARGET...]: configures if that is due, and builds.
set -euo pipefail
preset=$1
shift
cd "$(dirname "$0")/.."
folder=build
[ "$preset" = dev ] || folder=build-$preset

fresh=()
# A build folder that was copied or moved with its tree still points to the old place.
if [ -f "$folder/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt"; then
    fresh=(--fresh)
fi
if [ ! -f "$folder/build.ninja" ] || [ ${#fresh[@]} -gt 0 ]; then
    cmake "${fresh[@]}" --preset "$preset"
fi
targets=()
[ $# -eq 0 ] || targets=(--target "$@")
cmake --build --preset "$preset" "${targets[@]}"
