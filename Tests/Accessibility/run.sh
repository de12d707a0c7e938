#!/bin/sh
# Runs one accessibility test: run.sh SCENE-PROGRAM EXPECTATIONS.json
# Ends with 77, naming what is missing, when a program that it needs is not installed.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
python=/usr/bin/python3
skipped=77

missing=
for program in xvfb-run dbus-run-session openbox xdotool "$python"; do
    command -v "$program" >/dev/null 2>&1 || missing="$missing $program"
done
if [ -z "$missing" ] && ! "$python" -c "import gi; gi.require_version('Atspi', '2.0'); from gi.repository import Atspi" 2>/dev/null
then
    missing=" gir1.2-atspi-2.0 python3-gi"
fi
if [ -n "$missing" ]; then
    echo "skipped, not installed:$missing"
    exit $skipped
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -m 700 "$scratch/home" "$scratch/runtime"

# A place and settings of its own keep the run apart from the user's session and from other runs.
env -u DBUS_SESSION_BUS_ADDRESS -u WAYLAND_DISPLAY \
    HOME="$scratch/home" XDG_RUNTIME_DIR="$scratch/runtime" GSETTINGS_BACKEND=memory \
    LANG=C.UTF-8 LC_ALL=C.UTF-8 NO_AT_BRIDGE=0 \
    QT_QPA_PLATFORM=xcb QT_QUICK_BACKEND=software QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
    xvfb-run -a -s "-screen 0 1280x800x24" \
    dbus-run-session -- \
    "$python" -W ignore::DeprecationWarning "$here/check.py" "$@"
