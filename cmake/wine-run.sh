#!/usr/bin/env bash
# Runs a Windows executable under Wine and returns its exit code. Used by CTest as the
# cross-compiling emulator, also handy by hand: cmake/wine-run.sh build/windows/x.exe args...
#
# - The Wine prefix is our own, so a developer's ~/.wine is never touched:
#   $RHOMBA_WINEPREFIX, else $WINEPREFIX, else ~/.cache/rhomba/wine. It is created on first
#   use with `wineboot -i`, without the Mono/Gecko installer dialogs (log: <prefix>.init.log).
# - Windows are unmanaged (see below), so hiding one costs nothing on a virtual display.
# - Without a display the program runs on a virtual X server (xvfb-run), so tests may open
#   windows. Run the whole test session under one `xvfb-run -a` to share a server.
set -euo pipefail

if [[ $# -lt 1 ]]; then
    echo "usage: $0 program.exe [args...]" >&2
    exit 2
fi

if [[ -z "${DISPLAY:-}" ]]; then
    if ! command -v xvfb-run >/dev/null; then
        echo "wine-run: no DISPLAY and xvfb-run is not installed" >&2
        exit 2
    fi
    export RHOMBA_WINE_OWNS_DISPLAY=1
    exec xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" "$0" "$@"
fi

if command -v wine >/dev/null; then
    wine=(wine)
elif command -v wine64 >/dev/null; then
    wine=(wine64)
elif [[ -x /usr/lib/wine/wine64 ]]; then
    wine=(/usr/lib/wine/wine64)
else
    echo "wine-run: Wine is not installed (Debian: apt-get install wine wine64)" >&2
    exit 2
fi
wineserver=$(command -v wineserver || echo /usr/lib/wine/wineserver)

prefix="${RHOMBA_WINEPREFIX:-${WINEPREFIX:-${HOME:-/tmp}/.cache/rhomba/wine}}"
export WINEPREFIX="$prefix"
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"

# Several tests may start at once; only one of them sets the prefix up.
mkdir -p "$(dirname "$prefix")"
exec 9>"$prefix.lock"
flock 9
if [[ ! -f "$prefix/system.reg" ]]; then
    echo "wine-run: creating Wine prefix $prefix" >&2
    if ! "${wine[@]}" wineboot -i >"$prefix.init.log" 2>&1 9>&- \
        || ! "$wineserver" -w 9>&-; then
        echo "wine-run: wineboot failed, see $prefix.init.log" >&2
        flock -u 9
        exit 2
    fi
fi
# Windows are left unmanaged: on a virtual display without a window manager Wine otherwise
# waits two seconds for every hidden window to be withdrawn. Wine then draws the frames itself.
# The frame buttons are drawn with the Marlett symbol font, which Debian ships beside Wine but
# does not put into a new prefix.
marlett=/usr/share/wine/fonts/marlett.ttf
if [[ -f $marlett && ! -f "$prefix/drive_c/windows/Fonts/marlett.ttf" ]]; then
    mkdir -p "$prefix/drive_c/windows/Fonts" && cp "$marlett" "$prefix/drive_c/windows/Fonts/"
fi
if [[ ! -f "$prefix/.rhomba-unmanaged" ]]; then
    "${wine[@]}" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1 9>&- \
        && touch "$prefix/.rhomba-unmanaged"
fi
flock -u 9
exec 9>&-

rc=0
"${wine[@]}" "$@" || rc=$?

# The virtual display dies with this script: let Wine's helper processes finish first.
if [[ -n "${RHOMBA_WINE_OWNS_DISPLAY:-}" ]]; then
    "$wineserver" -w || true
fi
exit "$rc"
