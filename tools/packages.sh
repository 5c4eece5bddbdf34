# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
#
# Sourced by run, check and the scripts in packaging: installs Debian packages that are missing, and says which.

packages_to_build="build-essential cmake ninja-build ccache git qt6-base-dev qt6-svg-dev libqt6svg6 \
libexpected-dev libsdl2-dev libsdl2-2.0-0 libarchive-dev libgl-dev fonts-dejavu-core python3 librsvg2-bin"
packages_to_test="libgtest-dev libgmock-dev libbenchmark-dev clang-format-16 unrtf poppler-utils \
desktop-file-utils appstream shared-mime-info libxml2-utils groff-base zip unzip p7zip-full"
packages_for_deb="debhelper dpkg-dev"
packages_for_archive="patchelf qt6-wayland xz-utils"

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

# install_packages NAME...: quiet when all are there.
install_packages() {
    missing=""
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed \
            || missing="$missing $package"
    done
    [ -z "$missing" ] && return 0
    command -v apt-get >/dev/null || { echo "Please install:$missing"; return 1; }
    echo "Installing:$missing"
    as_root apt-get update -qq \
        && as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing
}
