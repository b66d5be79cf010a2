#!/usr/bin/env bash
# Builds and runs every test: the release build (with the installed-package test), then the
# whole suite again under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
jobs=$(nproc)
# Lets a compiler cache (where one is installed) serve any checkout of this tree.
export CCACHE_BASEDIR="$PWD"
for preset in release sanitize; do
  echo "== $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -j "$jobs"
  ctest --preset "$preset" -j "$jobs"
done
