# Sourced by ./run, ./test and .ci/run: steps that say what they do, one line each.
# Works in the repository's root, whatever the folder it was called from.

cd "$(dirname "${BASH_SOURCE[0]}")/.."

step() { printf '== %s\n' "$*"; }

fail() {
    printf 'failed: %s\n' "$*" >&2
    exit 1
}

# quietly LOG COMMAND...: keeps the command's output in a file, and shows its end only when it fails.
quietly() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 && return
    tail -n 40 "$log" >&2
    fail "$* (its whole output: $log)"
}

# The packages of the named groups of .ci/packages.
packages_of() {
    local group
    for group in "$@"; do
        sed -n "/^\[$group\]\$/,/^\[/{/^\[/d;/^#/d;p}" .ci/packages
    done
}

is_installed() {
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        command -v sudo >/dev/null || fail "packages are missing, and neither root nor sudo is here to install them: $missing"
        sudo -n "$@"
    fi
}

# install_packages GROUP...: installs what is missing; asks for nothing, does nothing when all is there.
install_packages() {
    local package missing=""
    for package in $(packages_of "$@"); do
        is_installed "$package" || missing+=" $package"
    done
    [[ -n $missing ]] || return 0
    command -v apt-get >/dev/null || fail "these packages of Debian 12, or what matches them here, are missing:$missing"
    step "install$missing"
    quietly build/log/apt-update as_root apt-get -q update
    # shellcheck disable=SC2086 # one word for each package
    quietly build/log/apt-install as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -q install -y --no-install-recommends $missing
}

# build PRESET [TARGET...]: configures and builds; everything where no target is named.
build() {
    local preset=$1
    shift
    step "configure the preset $preset"
    quietly "build/log/configure-$preset" cmake --preset "$preset"
    step "build ${*:-everything}"
    quietly "build/log/build-$preset" cmake --build --preset "$preset" ${1:+--target "$@"}
}
