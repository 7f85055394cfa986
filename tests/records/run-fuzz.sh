#!/usr/bin/env bash
# Builds the records fuzz target (clang, libFuzzer, ASan and UBSan) and runs it for a bounded
# time on a corpus seeded with tables and indexes the engine itself wrote.
#   tests/records/run-fuzz.sh [seconds=60] [build-dir=build-fuzz]
# Crashing inputs are left as <build-dir>/records-fuzz-crash-*; the exit status is non-zero
# when the fuzzer found one.
set -euo pipefail
seconds=${1:-60}
root=$(cd "$(dirname "$0")/../.." && pwd)
build=${2:-$root/build-fuzz}

cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DCMAKE_CXX_COMPILER=clang++ -DTARVIK_FUZZ=ON -DTARVIK_SANITIZE=ON \
  -DTARVIK_BUILD_BENCH=OFF >/dev/null
ninja -C "$build" -j2 records_fuzz

corpus=$build/records-fuzz-corpus
mkdir -p "$corpus"
TARVIK_FUZZ_WRITE_SEEDS=$corpus "$build/bin/records_fuzz"
"$build/bin/records_fuzz" "$corpus" -max_total_time="$seconds" -max_len=70000 -timeout=10 \
  -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$build/records-fuzz-"
