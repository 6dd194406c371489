#!/usr/bin/env bash
# The one test command: installs what is missing, builds the native and the Windows cross
# build, runs each fuzz target for 20 seconds, runs both test suites (the Windows one under
# Wine) and checks that both ran the same number of GoogleTest cases.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

jobs=$(nproc 2>/dev/null || echo 2)
presets=(linux windows)

"$root/scripts/install-deps.sh"

for preset in "${presets[@]}"; do
    echo "== configure and build: $preset"
    cmake --preset "$preset"
    cmake --build --preset "$preset" --parallel "$jobs"
done

status=0

# A short run of every fuzz target (clang, libFuzzer, sanitizers); fuzz/run.sh runs longer.
# Their chatter goes to logs so that the test summaries below stay the last thing printed.
mkdir -p "$root/build"
for target in reader clipboard pointlist length glyph; do
    fuzz_log="$root/build/fuzz-$target.log"
    echo "== fuzz: $target, 20 seconds (log: $fuzz_log)"
    if "$root/fuzz/run.sh" "$target" 20 >"$fuzz_log" 2>&1; then
        echo "fuzz: $(grep -E '^Done [0-9]+ runs' "$fuzz_log" | tail -1)"
    else
        tail -n 60 "$fuzz_log"
        echo "FAIL: fuzz run of $target, see $fuzz_log"
        status=1
    fi
done

# Tests that open windows need an X display; one virtual server serves the whole session.
display_wrapper=()
if [[ -z "${DISPLAY:-}" ]]; then
    display_wrapper=(xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp")
fi

for preset in "${presets[@]}"; do
    echo "== test: $preset"
    if [[ $preset == windows ]]; then
        "${display_wrapper[@]}" ctest --preset "$preset" --parallel "$jobs" || status=1
    else
        ctest --preset "$preset" --parallel "$jobs" || status=1
    fi
done

# Prints "<ctest test name> <gtest cases run>" for each test in a build's last CTest log; a test
# that died before GoogleTest's summary counts 0.
gtest_counts() {
    local log="$root/build/$1/Testing/Temporary/LastTest.log"
    [[ -f $log ]] || return 0
    tr -d '\r' <"$log" | awk '
        /^[0-9]+\/[0-9]+ Test: / { name = $3; count[name] += 0 }
        /^\[==========\] [0-9]+ tests? from .* ran\./ { count[name] += $2 }
        END { for (n in count) print n, count[n] }' | sort
}

declare -A native wine
while read -r name count; do native[$name]=$count; done < <(gtest_counts linux)
while read -r name count; do wine[$name]=$count; done < <(gtest_counts windows)

# Only tests present in both builds are compared; the Win32 tests exist in the cross build only.
native_total=0
wine_total=0
for name in "${!native[@]}"; do
    if [[ -n ${wine[$name]:-} ]]; then
        native_total=$((native_total + native[$name]))
        wine_total=$((wine_total + wine[$name]))
    fi
done
for name in "${!native[@]}"; do
    if [[ -z ${wine[$name]:-} ]]; then
        echo "Linux-only test $name: ${native[$name]} gtest cases"
    fi
done
for name in "${!wine[@]}"; do
    if [[ -z ${native[$name]:-} ]]; then
        echo "Windows-only test $name: ${wine[$name]} gtest cases"
    fi
done

if [[ $native_total -eq 0 || $wine_total -eq 0 ]]; then
    echo "FAIL: gtest cases run natively: $native_total, under Wine: $wine_total (none is not enough)"
    status=1
elif [[ $native_total -ne $wine_total ]]; then
    echo "FAIL: gtest cases run natively: $native_total, under Wine: $wine_total (they must match)"
    status=1
else
    echo "Counts match: gtest cases run natively: $native_total, under Wine: $wine_total"
fi

# One closing line over every GoogleTest case of both builds.
outcomes() {
    local log="$root/build/$1/Testing/Temporary/LastTest.log"
    [[ -f $log ]] && tr -d '\r' <"$log" | awk '
        /^\[  PASSED  \] [0-9]+ tests?\./ { passed += $4 }
        /^\[  FAILED  \] [0-9]+ tests?, listed below/ { failed += $4 }
        END { print passed + 0, failed + 0 }'
}
read -r native_passed native_failed < <(outcomes linux || echo 0 0)
read -r wine_passed wine_failed < <(outcomes windows || echo 0 0)
echo "gtest: $((native_passed + wine_passed)) passed, $((native_failed + wine_failed)) failed"

exit "$status"
