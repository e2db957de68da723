# Shared by scripts/play and scripts/test: install the Debian packages the build needs, then
# configure and build with the default preset.

BUILD_PACKAGES=(cmake ninja-build g++ qt6-base-dev qt6-multimedia-dev qt6-svg-dev libgtest-dev
    libgmock-dev qt6-tools-dev qt6-l10n-tools fonts-wine fonts-liberation pkg-config
    libmicrohttpd-dev libsqlite3-dev)

# Only the tests need these: the records service is tried behind a real nginx, which a player
# who runs scripts/play should not get installed (and started) on their machine.
TEST_PACKAGES=(nginx openssl curl)

install_missing() {
    local missing=()
    for pkg in "$@"; do
        dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q 'install ok installed' ||
            missing+=("$pkg")
    done
    [[ ${#missing[@]} -eq 0 ]] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=()
    [[ $(id -u) -eq 0 ]] || sudo=(sudo)
    export DEBIAN_FRONTEND=noninteractive
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" apt-get install -y -qq "${missing[@]}" >/dev/null
}

build_game() {
    cmake --preset default >/dev/null
    cmake --build --preset default
}
