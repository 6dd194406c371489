#!/usr/bin/env bash
# Builds the native reader's fuzz target with clang (libFuzzer, AddressSanitizer,
# UndefinedBehaviorSanitizer) and runs it on the seed corpus.
# Usage: fuzz/run.sh [seconds] [extra libFuzzer options...]   (default: 600 seconds)
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
seconds=${1:-600}
shift || true
build=${RHOMBA_FUZZ_BUILD:-$root/build/fuzz}
jobs=$(nproc 2>/dev/null || echo 2)

sanitizers="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined"
cmake -S "$root" -B "$build" -G Ninja \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
    -DCMAKE_CXX_FLAGS="$sanitizers" \
    -DRHOMBA_BUILD_TESTS=OFF -DRHOMBA_BUILD_BENCH=OFF -DRHOMBA_FUZZ=ON >/dev/null
cmake --build "$build" --target rhomba_reader_fuzz --parallel "$jobs"

# New inputs go to a scratch corpus so that the checked-in seeds stay small and reviewed.
work="$build/corpus"
mkdir -p "$work"
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
"$build/fuzz/rhomba_reader_fuzz" "$work" "$root/fuzz/corpus" \
    -max_total_time="$seconds" -max_len=65536 -timeout=10 -rss_limit_mb=2048 \
    -dict="$root/fuzz/native.dict" "$@"
