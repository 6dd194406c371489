#!/usr/bin/env bash
# Builds rhomba-cli (native preset) and converts the bundled example drawing to SVG.
# Usage: scripts/run-example.sh [drawing]   (default: examples/haus.rhomba)
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

drawing=${1:-examples/haus.rhomba}
"$root/scripts/install-deps.sh"

cmake --preset linux >/dev/null
cmake --build --preset linux --target rhomba-cli

out="$root/build/linux/$(basename "${drawing%.*}").svg"
"$root/build/linux/src/cli/rhomba-cli" convert "$drawing" "$out"
echo "SVG written to: $out"
