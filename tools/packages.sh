# SPDX-License-Identifier: MIT
# Sourced by run and test. Lists the Debian packages that they need, and installs the missing ones.

build_packages=(g++ cmake ninja-build ccache pkg-config qt6-base-dev libgl-dev libsqlite3-dev libcairo2-dev libharfbuzz-dev libfontconfig-dev libfreetype-dev qt6-translations-l10n fonts-dejavu-core fonts-liberation)
test_packages=(libgtest-dev libgmock-dev libbenchmark-dev valgrind locales clang libclang-rt-dev clang-format clang-tidy xvfb xauth desktop-file-utils appstream poppler-utils groff-base python3-icalendar shared-mime-info libglib2.0-bin x11-utils dpkg-dev)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_packages NAME...: asks the package manager only if one of them is missing.
install_packages() {
    local name missing=()
    for name in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    printf 'Installing %s\n' "${missing[*]}"
    as_root apt-get update -qq &&
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# install_locale NAME: makes a UTF-8 locale (NAME without ".UTF-8") if the system lacks it.
install_locale() {
    locale -a | grep -qiE "^$1\.utf-?8$" && return 0
    printf 'Making the locale %s.UTF-8\n' "$1"
    as_root localedef -i "$1" -f UTF-8 "$1.UTF-8"
}
