# The name files that are shipped keep their format: a common name up to column 48, a blank, the Latin name; sorted, no
# name twice, as many as promised. The arguments are the files; what breaks a rule is printed. What the program makes of a
# name file stands in tests/fuzz/fuzz_names.cpp.
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
