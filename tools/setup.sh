# shellcheck shell=bash
# Sourced by ./run and ./test: the machine's packages, the npm packages, configure and build.
# Expects the repository root as working directory.

# Everything that building, checking and testing needs on a bare Debian 12.
PACKAGES=(
    build-essential ccache cmake git mold ninja-build pkg-config python3 ca-certificates
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt5opengl5-dev libqt5webkit5-dev libkf5archive-dev libzstd-dev libdeflate-dev zlib1g-dev
    qttranslations5-l10n
    libtiff-dev libavcodec-dev libavformat-dev libavutil-dev libswscale-dev ffmpeg libtiff-tools
    freeglut3-dev libx11-dev libgl-dev libglu1-mesa-dev libgl1-mesa-dri libglx-mesa0
    xauth xvfb fonts-dejavu-core fonts-noto-cjk
    clang-format clang-tidy shellcheck libbenchmark-dev libopencv-imgproc-dev clang-14 libclang-rt-14-dev valgrind
)

say() { printf '%s\n' "$*" >&2; }
die() { say "$*"; exit 1; }

# Names of those given packages that are not installed.
missing_packages() {
    local installed
    # An unknown name makes dpkg-query fail, and that is an answer, not an error.
    # shellcheck disable=SC2016  # the braces are dpkg-query's
    installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
        awk '$2 == "installed" { print $1 }') || true
    printf '%s\n' "$@" | grep -vxF -f <(printf '%s\n' "$installed") || true
}

# True when a Node.js that runs bundler, checks and page tests is in the path, with npm.
has_node() {
    command -v npm >/dev/null && command -v node >/dev/null &&
        node -e 'const [a, b] = process.versions.node.split(".").map(Number);
                 process.exit(a > 18 || (a === 18 && b >= 18) ? 0 : 1)'
}

install_packages() {
    local wanted=("${PACKAGES[@]}") as_root=() missing
    has_node || wanted+=(nodejs npm)
    if ! command -v dpkg-query >/dev/null; then
        say "No dpkg here; going on in the hope that these are installed: ${wanted[*]}"
        return
    fi
    mapfile -t missing < <(missing_packages "${wanted[@]}")
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null ||
            die "These packages are missing, and neither root nor sudo is there to install them: ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing ${#missing[@]} packages: ${missing[*]}"
    local log=build/packages.log
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 -q)
    mkdir -p build
    # One unreachable list of packages need not matter; if it does, the installation fails.
    if ! { "${apt[@]}" update; "${apt[@]}" install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        die "The packages could not be installed."
    fi
}

# The npm packages by the lock file. The stamp spares a second start both npm and the network.
install_npm_packages() {
    local stamp=node_modules/.lock-stamp now
    now="$(sha256sum <package-lock.json) $(uname -m)"
    if [ -f $stamp ] && [ "$(cat $stamp)" = "$now" ]; then return; fi
    say "Installing the npm packages"
    npm ci --no-progress --loglevel=error >&2 || die "The npm packages could not be installed."
    printf '%s\n' "$now" >$stamp
}

# configure PRESET: once; ninja itself does it again when a CMake file has changed.
configure() {
    local log=build/$1.log
    [ ! -f "build/$1/build.ninja" ] || return 0
    mkdir -p build
    say "Configuring build/$1"
    cmake --preset "$1" >"$log" 2>&1 || { cat "$log" >&2; die "Configuring failed."; }
}

# build PRESET [TARGET...]: configures and builds; prints little unless something is wrong.
build() {
    local preset=$1 log=build/$1.log status=0
    shift
    configure "$preset"
    if [ -t 2 ]; then
        ninja -C "build/$preset" "$@" >&2 || status=$?
    else
        ninja -C "build/$preset" "$@" >"$log" 2>&1 || status=$?
        if [ $status != 0 ]; then grep -vE '^\[[0-9]+/[0-9]+\] ' "$log" | tail -n 200 >&2; fi
    fi
    [ $status = 0 ] || say "Building $preset failed."
    return $status
}

prepare() {
    install_packages
    install_npm_packages
}
