# The house keeps its own rules: arrows point down, no header includes a window, and the world is reached through the
# doors alone. The argument is src/; what breaks a rule is printed.
cd "$1" || exit 2
broken=0
forbid() { # options and places of grep, after the text that no source there may hold
    grep -rnP --include='*.h' "$@" && broken=1
}
forbid '#include "(?!(platform|text)/)[a-z]+/' --include='*.cpp' platform text
forbid '#include "(?!(platform|text|store)/)[a-z]+/' --include='*.cpp' store
forbid '#include "[a-z]+/frm_' .
forbid 'currentDate|currentTime|QMessageBox|QFileDialog|QPrintDialog|QRandomGenerator|QApplication::beep|\bQSettings [a-z]' \
    --include='*.cpp' --exclude='DesktopDoors.*' --exclude='SettingsStore.*' --exclude='Paper.*' .
[ "$(grep -rl --include='*.cpp' '#include' . | wc -l)" -gt 80 ] || broken=1
exit $broken
