# Sourced by ./run and ./test: the packages of Debian 12 that each needs, and their installation.

build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-base-private-dev qt6-svg-dev libgstreamer1.0-dev libgstreamer-plugins-base1.0-dev libcups2-dev libsqlcipher-dev libturbojpeg0-dev libzbar-dev)
program_packages=(qt6-translations-l10n fonts-dejavu-core fonts-liberation gstreamer1.0-plugins-base gstreamer1.0-plugins-good xdg-utils)
package_packages=(dpkg-dev gzip lintian desktop-file-utils appstream man-db)
test_packages=(git clang-format clang-tidy cups cups-client poppler-utils python3 shellcheck)

# install_packages NAME...: installs what is missing, with sudo when not root.
install_packages() {
    local package missing=() as_root=()
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Installing: ${missing[*]}"
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
