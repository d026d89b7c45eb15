# Installs what is missing of the packages named, on Debian 12. Sourced by ./run, ./test and .ci/run.

# What the editor itself is built from.
BUILD_PACKAGES="g++ cmake ninja-build ccache mold zlib1g-dev libpugixml-dev libcli11-dev qt6-base-dev qt6-svg-dev
  qt6-image-formats-plugins qt6-translations-l10n fontconfig fonts-liberation fonts-dejavu-core"
# What only the tests need.
TEST_PACKAGES="libgtest-dev libgmock-dev librapidcheck-dev libmuparser-dev libbenchmark-dev libxml2-utils xvfb xdotool openbox
  poppler-utils python3 python3-gi python3-xlib gir1.2-atspi-2.0 at-spi2-core dbus-daemon"
# What only CI needs.
CI_PACKAGES="clang-14 libclang-rt-14-dev clang-format-14 clang-tidy-14"

install_packages() {
  local missing=""
  local package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing="$missing $package"
  done
  [ -n "$missing" ] || return 0
  echo "Installing:$missing"
  local sudo=""
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Run as root, or install these packages first:$missing" >&2; return 1; }
    sudo=sudo
  fi
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $missing >/dev/null
}
