#!/bin/sh
# desktop.sh PROGRAM [ARGUMENT ...]: runs a program on an X server and under a window manager of its own, which end with it. Both
# say when they are ready, through a pipe.
set -eu
work=$(mktemp -d)
server= manager= program=
leave() {
    for process in $program $manager $server; do
        kill "$process" 2>/dev/null && wait "$process" 2>/dev/null || :
    done
    rm -rf "$work"
}
trap leave EXIT
trap 'exit 1' HUP INT TERM
# A pipe each: the server may still hold its own open when the manager's is read, and its end would be taken for the manager's.
mkfifo "$work/server" "$work/manager"

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/server" 2>"$work/server.log" &
server=$!
read -r display <"$work/server" || { echo "The X server did not start:" >&2; cat "$work/server.log" >&2; exit 1; }

export DISPLAY=":$display" HOME="$work" XDG_CONFIG_HOME="$work" XDG_CACHE_HOME="$work" XDG_DATA_HOME="$work" LC_ALL=C.UTF-8
export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
unset WAYLAND_DISPLAY SESSION_MANAGER DBUS_SESSION_BUS_ADDRESS XMODIFIERS QT_IM_MODULE QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME
openbox --startup "sh -c 'echo >\"$work/manager\"'" 3>"$work/manager" >"$work/manager.log" 2>&1 &
manager=$!
read -r _ <"$work/manager" || { echo "The window manager did not start:" >&2; cat "$work/manager.log" >&2; exit 1; }

"$@" &
program=$!
status=0
wait "$program" || status=$?
program=
exit $status
