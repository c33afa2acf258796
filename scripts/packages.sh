# What Ostrelmark is built with, from the distribution's packages, and the way to have it. Sourced by run, test and packaging/deb.
# Nothing is asked or fetched when everything is there.

build_packages="g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-documentation-tools libqt6sql6-sqlite libsqlite3-dev libfontconfig-dev libqcustomplot-dev fonts-liberation fonts-dejavu-core"
test_packages="libgtest-dev clang libclang-rt-14-dev xvfb openbox xdotool"
package_packages="dpkg-dev file lintian desktop-file-utils appstream"

# install_missing PACKAGE ...: as root, or through sudo.
install_missing() {
    missing=""
    for package in "$@"; do
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
            echo "Install them as root (apt-get install$missing) and start again." >&2
            return 1
        fi
        as_root="sudo"
    fi
    echo "Installing what is missing:$missing"
    $as_root apt-get update -qq &&
        $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# build PRESET: configures and builds, quietly unless it fails.
build() {
    cmake --preset "$1" >"$here/build-$1.log" 2>&1 && cmake --build --preset "$1" >>"$here/build-$1.log" 2>&1 && rm -f "$here/build-$1.log" && return 0
    cat "$here/build-$1.log" >&2
    return 1
}

# A UTF-8 locale and a run-time folder of mode 0700: without them Qt warns at every start.
prepare_environment() {
    export LC_ALL="${LC_ALL:-C.UTF-8}"
    if [ -z "${XDG_RUNTIME_DIR:-}" ] || [ ! -d "${XDG_RUNTIME_DIR:-}" ]; then
        XDG_RUNTIME_DIR=$(mktemp -d)
        chmod 700 "$XDG_RUNTIME_DIR"
        export XDG_RUNTIME_DIR
    fi
}
