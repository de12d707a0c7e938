#!/bin/sh
# Runs a program on a virtual display with a window manager: run.sh PROGRAM [ARGUMENT...]
# Ends with 77, naming what is missing, when a program that it needs is not installed.
set -eu

missing=
for program in xvfb-run openbox xdotool; do
    command -v "$program" >/dev/null 2>&1 || missing="$missing $program"
done
if [ -n "$missing" ]; then
    echo "skipped, not installed:$missing"
    exit 77
fi

export QT_QPA_PLATFORM=xcb QT_QUICK_BACKEND=software QT_LINUX_ACCESSIBILITY_ALWAYS_ON=0
# Two runs that begin at once may choose the same display, and one of them loses it: 75 says so.
# shellcheck disable=SC2016 # the inner shell expands it
attempt() {
    env -u WAYLAND_DISPLAY xvfb-run -a -s "-screen 0 1280x800x24" sh -c '
        openbox >/dev/null 2>&1 &
        manager=$!
        # A program that starts before the manager takes the display for one that has none.
        until xdotool get_num_desktops >/dev/null 2>&1; do
            kill -0 "$manager" 2>/dev/null || exit 75
            sleep 0.05
        done
        "$@" && result=0 || result=$?
        kill "$manager" 2>/dev/null || true
        exit "$result"' sh "$@"
}

for _ in 1 2 3; do
    attempt "$@" && result=0 || result=$?
    [ "$result" = 75 ] || break
done
exit "$result"
