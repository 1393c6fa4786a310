#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the benchmarks need,
# when any is missing. Safe to run again: it does nothing when all are there.
set -euo pipefail

packages=(
  cmake g++ make pkg-config
  libsqlite3-dev sqlite3
  libpugixml-dev
  qt6-base-dev qt6-base-dev-tools libgl-dev libqt6dbus6
  libgtest-dev googletest
  libbenchmark-dev
  unrtf
  clang libclang-rt-dev
  adwaita-icon-theme hicolor-icon-theme
  fonts-dejavu-core
  # The icons the program ships (taken from the installed set at build
  # time) and the SVG icon engine that draws them.
  tango-icon-theme qt6-svg-dev
  # The GUI tests on a real X server with a plain window manager.
  xvfb openbox
  # The Debian package: its dependencies, and a check of its desktop entry.
  dpkg-dev file desktop-file-utils
  # The file manager's D-Bus interface, tested on a private bus.
  dbus-daemon
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "Installing: ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
