# The sources are formatted: clang-format would not change a line. The arguments are its command and the project's folder.
cd "$2" || exit 2
find src tests bench tools packaging \( -name '*.cpp' -o -name '*.h' \) -exec "$1" --dry-run -Werror {} +
