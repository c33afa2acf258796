# The distribution's packages that Ostrelmark is built with, and functions that install them and build. run, test and packaging/deb
# source this file. If all packages are installed, nothing is asked or downloaded.

build_packages="g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-documentation-tools libqt6sql6-sqlite libsqlite3-dev libqcustomplot-dev mdbtools-dev libcli11-dev libcsv-dev libical-dev fonts-liberation fonts-dejavu-core"
test_packages="libgtest-dev clang clang-format clang-tidy libclang-rt-14-dev xvfb openbox xdotool dbus-daemon at-spi2-core python3-gi gir1.2-atspi-2.0"
package_packages="dpkg-dev file lintian desktop-file-utils appstream"

# The same by the names that other systems know them by.
build_needs="a C++20 compiler, CMake, Ninja, pkg-config, Qt 6.4 (base, SVG, tools, and its SQLite driver), SQLite 3, QCustomPlot 2.1, libmdb of mdbtools, CLI11, libcsv, libical"
test_needs="GoogleTest, clang with its fuzzer, clang-format, clang-tidy, Xvfb, openbox, xdotool, dbus-run-session, at-spi2-core, Python 3 with PyGObject and Atspi"
package_needs="dpkg with dpkg-shlibdeps, file, lintian, desktop-file-validate, appstreamcli"

# install_missing GROUP ...: installs the packages of these groups (build, test, package) that are missing, as root or with sudo. On
# a system without apt it says what is needed and leaves it to the build to find what is installed.
install_missing() {
    packages="" needs=""
    for group in "$@"; do
        list=${group}_packages words=${group}_needs
        packages="$packages ${!list}" needs="$needs${needs:+, }${!words}"
    done
    if ! command -v apt-get >/dev/null 2>&1 || ! command -v dpkg-query >/dev/null 2>&1; then
        echo "This system has no apt to install packages with, so the build uses what is installed. It needs, with the files for" >&2
        echo "development: $needs." >&2
        return 0
    fi
    missing=""
    for package in $packages; do
        case "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" in
        "install ok installed") ;;
        *) missing="$missing $package" ;;
        esac
    done
    [ -z "$missing" ] && return 0
    as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "These packages are missing:$missing" >&2
            echo "Install them as root (apt-get install$missing) and run this command again." >&2
            return 1
        fi
        as_root="sudo"
    fi
    echo "Installing missing packages:$missing"
    $as_root apt-get update -qq &&
        $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# has COMMAND: whether a command is installed. Says so if it is not, because then something is left out.
has() {
    command -v "$1" >/dev/null 2>&1 && return 0
    echo "$1 is not installed: what needs it is left out." >&2
    return 1
}

# build PRESET: configures and builds; prints the output only if this fails.
build() {
    cmake --preset "$1" >"$here/build-$1.log" 2>&1 && cmake --build --preset "$1" >>"$here/build-$1.log" 2>&1 && rm -f "$here/build-$1.log" && return 0
    cat "$here/build-$1.log" >&2
    return 1
}

# Sets a UTF-8 locale and a run-time folder of mode 0700; without them, Qt prints a warning at every start.
prepare_environment() {
    export LC_ALL="${LC_ALL:-C.UTF-8}"
    if [ -z "${XDG_RUNTIME_DIR:-}" ] || [ ! -d "${XDG_RUNTIME_DIR:-}" ]; then
        XDG_RUNTIME_DIR=$(mktemp -d)
        chmod 700 "$XDG_RUNTIME_DIR"
        export XDG_RUNTIME_DIR
    fi
}
