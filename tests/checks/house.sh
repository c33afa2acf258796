# Checks the rules of the source code that the compiler cannot: no header includes a window, no include leaves its folder by "..",
# and only the doors reach the clock, boxes, dialogs and settings. The argument is src/. Prints the lines that break a rule.
cd "$1" || exit 2
broken=0
forbid() { # the forbidden pattern, then the options and places of grep
    grep -rnP --include='*.h' "$@" && broken=1
}
forbid '#include ".*/frm_' .
forbid '#include "[.]' --include='*.cpp' .
forbid 'currentDate|currentTime|QMessageBox|QFileDialog|QPrintDialog|QRandomGenerator|QApplication::beep|\bQSettings [a-z]' \
    --include='*.cpp' --exclude='DesktopDoors.*' --exclude='TerminalDoors.*' --exclude='SettingsStore.*' --exclude='Paper.*' .
[ "$(grep -rl --include='*.cpp' '#include' . | wc -l)" -gt 80 ] || broken=1
exit $broken
