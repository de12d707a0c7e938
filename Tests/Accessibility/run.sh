#!/bin/sh
# Runs one accessibility test: run.sh SCENE-PROGRAM EXPECTATIONS.json
# Ends with 77, naming what is missing, when something that it needs is not installed.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
python=/usr/bin/python3
if ! command -v dbus-run-session >/dev/null 2>&1 \
    || ! "$python" -c "import gi; gi.require_version('Atspi', '2.0'); from gi.repository import Atspi" 2>/dev/null; then
    echo "skipped, not installed: dbus-daemon, gir1.2-atspi-2.0 or python3-gi"
    exit 77
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -m 700 "$scratch/home" "$scratch/runtime"

# A place and settings of its own keep the run apart from the user's session and from other runs.
env -u DBUS_SESSION_BUS_ADDRESS \
    HOME="$scratch/home" XDG_RUNTIME_DIR="$scratch/runtime" GSETTINGS_BACKEND=memory \
    LANG=C.UTF-8 LC_ALL=C.UTF-8 NO_AT_BRIDGE=0 \
    "$here/../Windows/run.sh" env QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 dbus-run-session -- \
    "$python" -W ignore::DeprecationWarning "$here/check.py" "$@"
