# Checks that each verb of ostrelmark-data is in its man page, in the completion of bash and in the help. The arguments are the program
# and the project's folder. Prints what is missing.
verbs=$("$1" --help | sed -n '/^Verbs:/,$s/^  \([a-z]*\) .*/\1/p')
cd "$2" || exit 2
broken=0
for verb in $verbs; do
    grep -qE "^[.]B[IR]? $verb\\b" packaging/ostrelmark-data.1.in || { echo "man page: $verb"; broken=1; }
    grep -q "compgen -W \".*\b$verb\b" packaging/ostrelmark-data.bash || { echo "completion: $verb"; broken=1; }
    grep -q "ostrelmark-data $verb\b" data/help/data-command.html || { echo "help: $verb"; broken=1; }
done
[ "$(echo "$verbs" | wc -w)" -ge 4 ] || broken=1
exit $broken
