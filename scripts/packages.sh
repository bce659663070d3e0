# shellcheck shell=bash disable=SC2034
# Shell functions that ./run and ./check share: packages of Debian 12 and the locale.

# What the program is built from and what it shows text and icons with. A bare machine has no font.
build_packages=(
    g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-svg-dev libsqlite3-dev libicu-dev libxlsxwriter-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    breeze-icon-theme fonts-dejavu-core qt6-translations-l10n
)
# What the tests drive the program with, read its pages with, compare its calendar with and fuzz it with.
test_packages=(
    xvfb xdotool poppler-utils imagemagick unzip python3 python3-dateutil python3-holidays
    clang libclang-rt-dev
)

# Prints the packages among the arguments that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
            echo "$package"
        fi
    done
}

as_root() {
    if [[ $(id -u) -eq 0 ]]; then
        env "$@"
    elif command -v sudo >/dev/null; then
        sudo env "$@"
    else
        echo "Root or sudo is needed to install: ${missing[*]}" >&2
        return 1
    fi
}

# Installs what is missing of the arguments; calls apt only when something is.
install_missing() {
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if [[ ${#missing[@]} -eq 0 ]]; then
        return 0
    fi
    echo "Installing: ${missing[*]}"
    as_root DEBIAN_FRONTEND=noninteractive apt-get update -q
    as_root DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# Texts are UTF-8; a bare machine has no such locale set.
ensure_utf8() {
    if [[ $(locale charmap 2>/dev/null) == UTF-8 ]]; then
        return 0
    fi
    if [[ -n ${LC_ALL:-} ]]; then
        export LC_ALL=C.UTF-8
    else
        export LC_CTYPE=C.UTF-8
    fi
}
