#!/usr/bin/env bash
# Builds the editor (the Windows cross build) and opens the bundled isometric example in it under
# Wine. Without a display it runs on a virtual screen, writes build/screenshot.png and closes.
# Usage: scripts/run-example.sh [drawing]   (default: examples/iso-werkstueck.rhomba)
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

drawing=${1:-examples/iso-werkstueck.rhomba}
"$root/scripts/install-deps.sh"

cmake --preset windows >/dev/null
cmake --build --preset windows --target rhomba
exe="$root/build/windows/src/win32/rhomba.exe"

if [[ -n "${DISPLAY:-}" ]]; then
    exec "$root/cmake/wine-run.sh" "$exe" "$drawing"
fi

# No display: a virtual screen, a picture of it once the window has painted, then the end.
for tool in import:imagemagick xwininfo:x11-utils; do
    if ! command -v "${tool%%:*}" >/dev/null; then
        sudo=(); [[ $(id -u) -ne 0 ]] && sudo=(sudo)
        DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y --no-install-recommends "${tool#*:}"
    fi
done
screenshot="$root/build/screenshot.png"
xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" bash -c '
    "$1/cmake/wine-run.sh" "$2" "$3" &
    for _ in $(seq 1 120); do
        xwininfo -root -tree 2>/dev/null | grep -q "Rhomba\"" && break
        sleep 0.5
    done
    sleep 2
    import -window root "$4"
    wineserver=$(command -v wineserver || echo /usr/lib/wine/wineserver)
    WINEPREFIX="${RHOMBA_WINEPREFIX:-${WINEPREFIX:-$HOME/.cache/rhomba/wine}}" "$wineserver" -k || true
    wait || true
' run-example "$root" "$exe" "$drawing" "$screenshot"
echo "Screenshot of the editor: $screenshot"
