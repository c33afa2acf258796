# The help has a page for every window, by its name, and no link, picture or keyword to a page or a place in one that is
# not there. The arguments are the folder of the help and src/; what is missing is printed.
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
