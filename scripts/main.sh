#!/usr/bin/env bash
# The main job: build the library and run the example pipeline on its built-in image.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
export CCACHE_BASEDIR="$PWD"
cmake --preset release >/dev/null
cmake --build --preset release --target tpx_pipeline
./build/release/examples/tpx_pipeline "$@"
