# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
#
# Sourced by check: a Windows of its own under Wine, on a screen that nobody sees.

# start_wine FOLDER: makes the Windows in FOLDER when there is none yet, and starts the screen. Liberation
# has the widths of Arial, Courier New and Times New Roman.
start_wine() {
    mkdir -p "$1"
    WINEPREFIX="$(realpath -- "$1")"
    # Neither of them is needed, and Wine would ask to fetch them.
    export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=" WINEARCH=win64
    start_screen "$1"
    [ -e "$WINEPREFIX/ready" ] && return
    wineboot --init >/dev/null 2>&1
    cp /usr/share/fonts/truetype/liberation/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    wine reg add 'HKCU\Software\Wine' /v Version /d win10 /f >/dev/null 2>&1
    local pair
    for pair in "Arial=Liberation Sans" "Courier New=Liberation Mono" "Times New Roman=Liberation Serif"; do
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "${pair%%=*}" /d "${pair#*=}" /f >/dev/null 2>&1
    done
    wineserver -w
    touch "$WINEPREFIX/ready"
}

start_screen() {
    [ -n "${screen:-}" ] && return
    Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$1/screen" 2>/dev/null &
    screen=$!
    until [ -s "$1/screen" ]; do sleep 0.2; done
    DISPLAY=":$(cat "$1/screen")"
    export DISPLAY
}

# Ends the programs of this Windows, and its screen.
stop_wine() {
    wineserver -k || true
    kill "$screen" 2>/dev/null || true
}

# windows_path PATH: a path of this system as a program of Windows names it.
windows_path() {
    realpath -m -- "$1" | sed -e 's|^|Z:|' -e 's|/|\\|g'
}
