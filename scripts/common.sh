# Packages and helpers that ./dev and its scripts share. A script that reads it runs in the
# project's folder.
# shellcheck shell=bash disable=SC2034
set -euo pipefail
export dev_caller=${dev_caller:-$PWD} # paths that the user gives are relative to it
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

# fail MESSAGE [STATUS]
fail() {
    echo "dev: $1" >&2
    exit "${2:-1}"
}

# CMake, make and Qt's translation rules each give one of these signs a meaning of its own.
case "$PWD" in *[]\[\"\\\;\#\<\>\|\$:[:cntrl:]]*)
    fail "this folder's path has a sign that CMake cannot carry, one of [ ] \" \\ ; # < > | : \$ or a control character; move the project" 2 ;;
esac
printf %s "$PWD" | iconv -f UTF-8 -t UTF-8 > /dev/null 2>&1 \
    || fail "this folder's path is not UTF-8, so Qt's tools cannot read it; move the project" 2

build_packages=(build-essential cmake pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools
    libelf-dev libnl-genl-3-dev libpcap-dev libsystemd-dev nlohmann-json3-dev)
run_packages=(fonts-dejavu-core fonts-wqy-microhei)
test_packages=(dbus python3-minimal python3-dbusmock)

# The programs and files that a user needs, without the tests.
programs=(testset wifiondivo wifi-scan scenarios translations)

has() { command -v "$1" > /dev/null; }

as_root() {
    [ "$(id -u)" = 0 ] || set -- sudo "$@"
    "$@"
}

# Prints from its input errors, failed tests and totals, each with the lines after it; on a terminal
# the last other line stands below them.
progress() {
    local line telling='' clear=''
    [ ! -t 1 ] || clear=$'\r\e[K'
    while IFS= read -r line; do
        if [[ "$line" =~ ^\ *\[\ *[0-9]+(%|/)|^\ *Start\ |Test\ +\#.*\ Passed|^(Get:|Unpacking|Setting up) ]]; then
            telling=''
            [ -z "$clear" ] || printf '%s%.79s' "$clear" "$line"
        elif [[ "$line" =~ ^(E|W|Err):|error:|Error|\*\*\*|^[0-9]+%\ tests|^Need\ to\ get|^After\ this ]]; then
            telling=yes
        fi
        [ -z "$telling" ] || [[ "$line" = PASS* ]] || printf '%s%s\n' "$clear" "$line"
    done
    printf %s "$clear"
}

# logged NAME COMMAND...: runs a command, of whose output the terminal gets the progress, and
# build/NAME.log all.
logged() {
    local log=build/$1.log
    shift
    mkdir -p build
    "$@" 2>&1 | tee "$log" | progress || fail "failed; the whole output is in $log"
}

# Installs those of the given Debian packages that are missing. A machine without apt goes on, and
# CMake or the shell names what it does not find.
install_missing() {
    local package missing=()
    has apt-get || return 0
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2> /dev/null)" = installed ] \
            || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "dev: installing ${missing[*]} and what they need"
    (logged apt-update as_root apt-get -q update) \
        || echo "dev: the package index is not up to date; going on with the old one" >&2
    logged apt as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -q install -y --no-install-recommends "${missing[@]}"
}

setup() { install_missing "${build_packages[@]}" "${run_packages[@]}"; }

# configure_and_build PRESET [TARGET...]
configure_and_build() {
    local preset=$1
    shift
    cmake --preset "$preset" || {
        has apt-get || echo "Error: here is no apt: install what CMake did not find; CONTRIBUTING.md lists the packages and their purposes"
        return 1
    }
    cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}

# build PRESET [TARGET...]: all when no target is given.
build() {
    setup
    [ -d "build/$1" ] || echo "dev: building in build/$1, which takes minutes the first time"
    logged "$1" configure_and_build "$@"
}

# run_tests PRESET [COMMAND...]: all tests, CTest started by a command if one is given.
run_tests() {
    local preset=$1
    shift
    install_missing "${test_packages[@]}"
    build "$preset"
    # The longest of them run programs and mostly wait for these.
    logged "$preset-tests" "$@" ctest --preset "$preset" --parallel "$((2 * $(nproc)))"
    echo "dev: what the tests printed is in build/$preset-tests.log"
}

# update_texts FILE...: files of translations, with the texts that the sources have now.
update_texts() {
    PATH=/usr/lib/qt5/bin:$PATH lupdate -silent -no-obsolete -locations none \
        -I . -source-language en_GB host source platform include -ts "$@"
}

# make_debian COMMAND... SUITE TARGET: runs mmdebstrap, or a command with it and its options, with
# the mirror and the proxy of this machine's own apt.
make_debian() {
    local mirror http_proxy=''
    install_missing mmdebstrap
    # shellcheck disable=SC2016 # for apt
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' \
        'Label: Debian' 'Component: main' | grep -m 1 -E '^(https?|file):') || mirror=''
    eval "$(apt-config shell http_proxy Acquire::http::Proxy)"
    "$@" ${mirror:+"$mirror"} ${http_proxy:+--aptopt="Acquire::http::Proxy \"$http_proxy\""}
}
