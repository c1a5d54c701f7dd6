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

# On a Mac all groups are Homebrew's group "mac", some of which are looked for where only Homebrew knows.
install_formulae() {
    local formula
    command -v brew >/dev/null || fail "Homebrew installs these formulae, and is missing: $(packages_of mac)"
    # shellcheck disable=SC2046 # one word for each formula
    quietly build/log/brew-install brew install --quiet $(packages_of mac)
    for formula in expat icu4c libxml2; do
        CMAKE_PREFIX_PATH=$(brew --prefix "$formula"):${CMAKE_PREFIX_PATH:-}
    done
    export CMAKE_PREFIX_PATH
}

# install_packages GROUP...: installs what is missing; asks for nothing, does nothing when all is there.
install_packages() {
    local package missing=""
    if [[ $(uname) == Darwin ]]; then
        install_formulae
        return
    fi
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
