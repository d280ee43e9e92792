# shellcheck shell=bash disable=SC2034
# What run.sh, test.sh and their like need from Debian. To be sourced.

# Shared by everything that builds the program or runs it.
PAQUETES_PROGRAMA=(g++ cmake ninja-build qt6-base-dev cmark-gfm fonts-liberation qt6-translations-l10n)
# For the tests besides: the test library, two more locales, a screen without a screen and its accessibility.
PAQUETES_PRUEBAS=(libgtest-dev libgmock-dev locales poppler-utils xvfb xauth xdotool openbox
                  at-spi2-core dbus python3-gi gir1.2-atspi-2.0)
PAQUETES_BANCO=(libbenchmark-dev)
PAQUETES_CLANG=(clang-14 clang clang-tidy-14 clang-format-14 libclang-rt-14-dev)

avisa() { printf '>> %s\n' "$*" >&2; }

# With sudo only where it isn't root already.
como_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        avisa "sudo $*"
        sudo "$@"
    fi
}

# Those of the named packages that aren't installed.
paquetes_que_faltan() {
    local instalados paquete
    instalados=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    for paquete in "$@"; do
        grep -qx "installed $paquete" <<<"$instalados" || printf '%s\n' "$paquete"
    done
}

# Installs what is missing of the named packages, and touches nothing when nothing is.
instala_paquetes() {
    command -v apt-get >/dev/null || { avisa "Not a Debian system: it must already have the like of: $*"; return 0; }
    local faltan
    mapfile -t faltan < <(paquetes_que_faltan "$@")
    [ ${#faltan[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        avisa "Missing, and there is no sudo to install it. As root, run: apt-get install ${faltan[*]}"
        return 1
    fi
    avisa "Installing with apt: ${faltan[*]}"
    # Lists that can't be refreshed may still name the packages.
    como_root apt-get -q update || true
    como_root env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 install \
        --yes --no-install-recommends "${faltan[@]}"
}

# Makes the locales in which a decimal point isn't a point.
genera_locales() {
    local locale idioma
    for locale in "$@"; do
        idioma=${locale%%.*}
        if ! locale -a | grep -qix "${idioma}\.utf-\?8"; then
            avisa "Generating the locale $locale"
            como_root localedef -i "$idioma" -f UTF-8 "$locale"
        fi
    done
}

# Configures and builds a preset; a second or two when nothing has changed.
construye() {
    cmake --preset "$1" -Wno-dev
    cmake --build --preset "$1"
}
