# shellcheck shell=bash
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
#
# Sourced by the proofs: a Windows of their own under Wine, on a screen that nobody sees.

# start_wine FOLDER: makes the Windows in FOLDER when there is none yet, and starts the screen. Liberation
# has the widths of Arial, Courier New and Times New Roman.
start_wine() {
    mkdir -p "$1"
    WINEPREFIX="$(realpath -- "$1")"
    # What is switched off is not needed: Wine would ask to fetch two libraries, and its debugger keeps a
    # program that crashed from ending.
    export WINEPREFIX WINEARCH=win64 WINEDEBUG=-all LANG=C.UTF-8 \
        WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=;winedbg.exe="
    # A thread of Wine's XInput goes on after SDL has unloaded that library, and crashes.
    export SDL_XINPUT_ENABLED=0
    start_screen
    trap stop_wine EXIT
    [ -e "$WINEPREFIX/ready" ] && return
    wineboot --init >/dev/null 2>&1
    "$(dirname "${BASH_SOURCE[0]}")/copy_fonts.py" "$WINEPREFIX/drive_c/windows/Fonts" \
        /usr/share/fonts/truetype/liberation/*.ttf
    wine reg add 'HKCU\Software\Wine' /v Version /d win10 /f >/dev/null 2>&1
    local pair
    for pair in "Arial=Liberation Sans" "Courier New=Liberation Mono" "Times New Roman=Liberation Serif"; do
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "${pair%%=*}" /d "${pair#*=}" /f >/dev/null 2>&1
    done
    # Wine's own Tahoma, the font of windows and menus, loses strokes in small sizes.
    local place
    for place in Caption Menu Message SmCaption Status; do
        wine reg add 'HKCU\Control Panel\Desktop\WindowMetrics' /v "${place}Font" /t REG_BINARY \
            /d "$(logical_font "Liberation Sans")" /f >/dev/null 2>&1
    done
    wineserver -w
    touch "$WINEPREFIX/ready"
}

# A font of nine points in the bytes in which Windows keeps it (LOGFONTW): the height, negative for that
# of a character, the weight at the fifth number, and 32 characters of the name.
logical_font() {
    python3 -c 'import struct, sys
print((struct.pack("<iiiii8x", -12, 0, 0, 0, 400) + sys.argv[1].encode("utf-16-le").ljust(64, b"\0")).hex())' "$1"
}

start_screen() {
    local number="$WINEPREFIX/screen"
    rm -f "$number"
    Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$number" 2>/dev/null &
    screen=$!
    until [ -s "$number" ]; do sleep 0.2; done
    DISPLAY=":$(cat "$number")"
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

# Wine keeps variables that begin with QT_ from its programs, and gives them those that begin with
# WINEQT_ under that name.

# play PROGRAM LOG STEP...: starts zeph.exe with the plugin that plays the pilot (DRIVER is the folder
# of its kind) and leaves what it noted in LOG. PLAY_FILE is what Zeph is to open.
play() {
    local program="$1" log="$2"
    shift 2
    rm -f "$log"
    mkdir -p "$(dirname "$log")"
    printf '%s\n' "$@" >"$log.script"
    ZEPH_SCRIPT="$(windows_path "$log.script")" ZEPH_SCRIPT_LOG="$(windows_path "$log")" \
        WINEQT_PLUGIN_PATH="$(windows_path "$DRIVER")" WINEQT_QPA_GENERIC_PLUGINS=zephdriver ZEPH_PATIENCE_MS=90000 \
        timeout 900 wine "$program" ${PLAY_FILE:+"$PLAY_FILE"} >/dev/null 2>&1
}

# good WORDS / bad WORDS: tells a result; the last line of a proof is its verdict.
faults=0
good() { echo "  good: $*"; }
bad() {
    echo "  BAD:  $*"
    faults=$((faults + 1))
}
# expect WORDS COMMAND...: good when the command succeeds.
expect() {
    local words="$1"
    shift
    if "$@" >/dev/null 2>&1; then good "$words"; else bad "$words"; fi
}
verdict() {
    echo "$1: $([ "$faults" = 0 ] && echo "good" || echo "$faults faults")"
    [ "$faults" = 0 ]
}
