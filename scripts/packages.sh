# Sourced by the scripts: installs the Debian packages the project needs, quietly and only
# when some are missing. Safe to run again and again.

# Qt 6 Widgets and Svg for the editor's window (its tests run on Qt's offscreen platform),
# with Qt's further platform plugins; stb for the resampler.
IW_BUILD_PACKAGES="cmake ninja-build g++ pkg-config libpugixml-dev libstb-dev qt6-base-dev
  qt6-svg-dev qt6-qpa-plugins"
# binutils-mingw-w64-*: windres and ld build the Windows libraries whose icon and cursor
# groups the tests read (tests/data/pe), as 64-bit (PE32+) and 32-bit (PE32) images.
IW_TEST_PACKAGES="googletest libgtest-dev libgmock-dev libbenchmark-dev zlib1g-dev libpng-dev
  clang libclang-rt-dev python3 python3-pil imagemagick icoutils optipng
  desktop-file-utils appstream groff-base
  binutils-mingw-w64-x86-64 binutils-mingw-w64-i686"
# cpack -G DEB: dpkg-shlibdeps finds the packages of the libraries the programs link.
IW_PACKAGING_PACKAGES="dpkg-dev"

iw_missing_packages() {
  local missing=""
  for pkg in "$@"; do
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
      missing="$missing $pkg"
    fi
  done
  echo "$missing"
}

iw_ensure_packages() {
  local missing
  missing=$(iw_missing_packages "$@")
  [ -z "$missing" ] && return 0
  echo "Installing:$missing"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq >/dev/null
  # shellcheck disable=SC2086
  $sudo apt-get install -y -qq --no-install-recommends $missing >/dev/null
}
