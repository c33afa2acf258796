# Checks the format of the installed name files: a common name up to column 48, a blank, the Latin name. The names are sorted, no
# name occurs twice, and there are enough of them. A compound has one spelling in a file ("Red-Tail", "Red Tail" or "Redtail").
# No name ends in "Fish", since the lists put the last word first. The arguments are the files. Prints what breaks a rule.
# tests/fuzz/fuzz_names.cpp tests how the program reads a name file.
spelledTwice='
    function note(form, key) {
        sub(/ -/, "-", form)
        key = form
        gsub(/[ -]/, "", key)
        if (key in forms && forms[key] != form)
            print "two spellings: " forms[key] ", " form
        forms[key] = form
    }
    {
        gsub(/-/, " -")
        for (i = 1; i <= NF; i++) {
            word = $i
            sub(/^-/, "", word)
            note(word)
            if (i < NF)
                note(word " " $(i + 1))
        }
    }'
broken=0
for file in "$@"; do
    names=$(LC_ALL=C grep -v '^!' "$file" | tr 'A-Z' 'a-z')
    LC_ALL=C grep -nvP '^(!|\S.{47} [A-Z][a-z]+ ([a-z][a-z-]+|sp\.)$)' "$file" && broken=1
    echo "$names" | LC_ALL=C sort -c || broken=1
    twice=$(echo "$names" | cut -c1-49 | LC_ALL=C uniq -d)
    [ -z "$twice" ] || { echo "twice: $twice"; broken=1; }
    echo "$names" | cut -c1-48 | grep ' fish *$' && broken=1
    twoForms=$(echo "$names" | cut -c1-48 | LC_ALL=C awk "$spelledTwice")
    [ -z "$twoForms" ] || { echo "$twoForms"; broken=1; }
    [ "$(echo "$names" | wc -l)" -ge 800 ] || { echo "$file has too few"; broken=1; }
done
exit $broken
