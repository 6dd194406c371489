#!/usr/bin/env bash
# Builds one fuzz target with clang (libFuzzer, AddressSanitizer, UndefinedBehaviorSanitizer)
# and runs it on its seed corpus.
# Usage: fuzz/run.sh TARGET [seconds] [extra libFuzzer options...]   (default: 600 seconds)
# Targets: reader, clipboard, pointlist, length, glyph.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
target=${1:?usage: fuzz/run.sh TARGET [seconds] [libFuzzer options...]}
seconds=${2:-600}
shift $(($# < 2 ? $# : 2))
build=${RHOMBA_FUZZ_BUILD:-$root/build/fuzz}
jobs=$(nproc 2>/dev/null || echo 2)
[[ -d $root/fuzz/corpus/$target ]] || { echo "fuzz/run.sh: no target '$target'" >&2; exit 2; }

sanitizers="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined"
cmake -S "$root" -B "$build" -G Ninja \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
    -DCMAKE_CXX_FLAGS="$sanitizers" \
    -DRHOMBA_BUILD_TESTS=OFF -DRHOMBA_BUILD_BENCH=OFF -DRHOMBA_FUZZ=ON >/dev/null
cmake --build "$build" --target "rhomba_${target}_fuzz" --parallel "$jobs"

# New inputs go to a scratch corpus so that the checked-in seeds stay small and reviewed.
work="$build/corpus/$target"
mkdir -p "$work"
options=(-max_total_time="$seconds" -max_len=65536 -timeout=10 -rss_limit_mb=2048)
[[ -f $root/fuzz/$target.dict ]] && options+=(-dict="$root/fuzz/$target.dict")
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
"$build/fuzz/rhomba_${target}_fuzz" "$work" "$root/fuzz/corpus/$target" "${options[@]}" "$@"
