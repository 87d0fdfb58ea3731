# SPDX-License-Identifier: GPL-3.0-or-later
# install_packages GROUP...: installs the Debian packages of the groups that are missing.

build_packages="g++ cmake ninja-build qt6-base-dev qt6-translations-l10n libqt6svg6-dev libgl-dev libqt6opengl6-dev libqcustomplot-dev
    nlohmann-json3-dev libcli11-dev libgtest-dev libgmock-dev libbenchmark-dev fonts-dejavu-core"
test_packages="xvfb xauth"
style_packages="clang-format clang-tidy python3"

install_packages() {
    local wanted missing="" package group
    for group in "$@"; do
        wanted="${group}_packages"
        for package in ${!wanted}; do
            dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing="$missing $package"
        done
    done
    [ -z "$missing" ] && return 0
    echo "Installing:$missing"
    local as_root=""
    [ "$(id -u)" = 0 ] || as_root="sudo"
    $as_root apt-get update -qq
    # shellcheck disable=SC2086
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing
}
