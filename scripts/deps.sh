#!/usr/bin/env bash
# Installs what the build, tests and benchmarks need, where it is missing (Debian).
set -euo pipefail
need=(cmake ninja-build g++ pkg-config libgtest-dev libbenchmark-dev libopencv-dev libfftw3-dev)
missing=()
for p in "${need[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "installing: ${missing[*]}"
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq "${missing[@]}" >/dev/null
fi
