#!/usr/bin/env bash
# Builds the benchmarks in Release, runs a fixed selection, and prints a
# markdown table: tavs against each open peer, with ratios (tavs / peer; below
# 1 means tavs is faster) and, for transforms, mflops (5 N log2 N / us).
# Run as root, it installs the peer packages it finds missing.
#   bash bench/report.sh [extra --benchmark_filter regex]
set -euo pipefail
cd "$(dirname "$0")/.."

peers=(libbenchmark-dev libfftw3-dev libvolk2-dev libkissfft-dev libsleef-dev libliquid-dev pkg-config)
missing=()
for p in "${peers[@]}"; do dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p"); done
if [ "${#missing[@]}" -gt 0 ]; then
  if [ "$(id -u)" = 0 ]; then
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq && apt-get install -y -qq "${missing[@]}" || echo "some peers could not be installed: ${missing[*]}"
  else
    echo "not root: running without ${missing[*]}"
  fi
fi

cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DTAVS_BUILD_BENCH=ON \
  -DTAVS_BUILD_TESTS=OFF -DTAVS_BUILD_EXAMPLES=OFF >/dev/null
cmake --build build-bench --target tavs_bench >/dev/null

filter="${1:-.}"
json=build-bench/bench.json
./build-bench/bench/tavs_bench --benchmark_filter="$filter" --benchmark_min_time=0.2 \
  --benchmark_format=json --benchmark_out="$json" --benchmark_out_format=json >/dev/null
python3 bench/table.py "$json"
