#!/usr/bin/env bash
# Builds the editor model's fuzz target (clang, libFuzzer, ASan and UBSan) and drives the model
# with random action sequences for a bounded time.
#   tests/editor/run-fuzz.sh [seconds=30] [build-dir=build-fuzz]
set -euo pipefail
seconds=${1:-30}
root=$(cd "$(dirname "$0")/../.." && pwd)
build=${2:-$root/build-fuzz}

cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DCMAKE_CXX_COMPILER=clang++ -DTARVIK_FUZZ=ON -DTARVIK_SANITIZE=ON \
  -DTARVIK_BUILD_BENCH=OFF >/dev/null
ninja -C "$build" -j2 editor_fuzz

corpus=$build/editor-fuzz-corpus
mkdir -p "$corpus"
QT_QPA_PLATFORM=offscreen "$build/bin/editor_fuzz" "$corpus" -max_total_time="$seconds" \
  -max_len=600 -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
  -artifact_prefix="$build/editor-fuzz-"
