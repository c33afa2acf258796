# Checks the format of the installed name files: a common name up to column 48, a blank, the Latin name. The names are sorted, no
# name occurs twice, and there are enough of them. The arguments are the files. Prints the lines that break a rule.
# tests/fuzz/fuzz_names.cpp tests how the program reads a name file.
broken=0
for file in "$@"; do
    names=$(LC_ALL=C grep -v '^!' "$file" | tr 'A-Z' 'a-z')
    LC_ALL=C grep -nvP '^(!|\S.{47} [A-Z][a-z]+ ([a-z][a-z-]+|sp\.)$)' "$file" && broken=1
    echo "$names" | LC_ALL=C sort -c || broken=1
    twice=$(echo "$names" | cut -c1-49 | LC_ALL=C uniq -d)
    [ -z "$twice" ] || { echo "twice: $twice"; broken=1; }
    [ "$(echo "$names" | wc -l)" -ge 800 ] || { echo "$file has too few"; broken=1; }
done
exit $broken
