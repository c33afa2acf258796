# Checks that the help has one keyword with the name of each window, and that each link, picture and keyword leads to a page, and to
# a place in the page, that exists. The arguments are the folder of the help and the full path of src/windows. Prints what is missing.
cd "$1" || exit 2
broken=0
missing() {
    echo "missing: $*"
    broken=1
}
for header in "$2"/*/frm_*.h; do
    window=$(basename "$header" .h)
    [ "$(grep -c "id=\"$window\"" ostrelmark.qhp)" = 1 ] || missing "one keyword for $window"
done
for link in $(grep -oE ' (href|src|ref)="[^":]+"' *.html ostrelmark.qhp | sed -E 's/^([^:]*): [a-z]+="(.*)"/\1>\2/'); do
    from=${link%%>*} to=${link#*>}
    page=${to%%#*}
    [ -f "${page:-$from}" ] || missing "$from: $page"
    case $to in *#*) grep -qE "(id|name)=\"${to#*#}\"" "${page:-$from}" || missing "$from: $to" ;; esac
done
exit $broken
