#!/bin/sh
# reader.sh PROGRAM NEWDB DATA: runs reader.py on a display and a session bus of its own. Where something that it needs is missing, it
# says what, and the test counts as skipped.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
skip() { echo "Skipped: $1"; exit 77; }
for command in Xvfb openbox xdotool dbus-run-session; do
    command -v "$command" >/dev/null || skip "$command is not installed."
done
[ -f /usr/share/dbus-1/services/org.a11y.Bus.service ] || skip "the accessibility bus (at-spi2-core) is not installed."
for python in python3 /usr/bin/python3; do # a Python of the keeper's own often lacks the modules of the system's
    "$python" -c 'import gi; gi.require_version("Atspi", "2.0"); from gi.repository import Atspi' 2>/dev/null &&
        exec sh "$here/desktop.sh" dbus-run-session -- "$python" "$here/reader.py" "$@"
done
skip "Python has no Atspi (python3-gi, gir1.2-atspi-2.0)."
