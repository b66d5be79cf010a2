#!/usr/bin/env bash
# Builds the benchmarks and prints the ratio table: tpx against its OpenCV peer (CPU time,
# medians of interleaved repetitions) and against this machine's memory bandwidth.
#   scripts/bench.sh [benchmark filter regex] [repetitions]
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset bench >/dev/null
cmake --build --preset bench --target tpx_bench
python3 bench/report.py ./build/bench/bench/tpx_bench "${1:-.}" "${2:-5}"
