#!/usr/bin/env bash
# The Debian package and `make install`, tried as a user would: the package
# is built from this build folder and unpacked into a temporary root (as
# `dpkg -x` does); the programs installed there run, the desktop entry names
# a program and an icon that are installed, the manual page reads. An
# install under a prefix gives the same files.
#
#   package_test.sh BUILD_FOLDER
set -euo pipefail
build=$(cd "${1:?usage: package_test.sh BUILD_FOLDER}" && pwd)
source_dir=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
check() {  # check DESCRIPTION COMMAND...
  local what=$1
  shift
  if "$@" >>"$work/checks.log" 2>&1; then
    echo "ok: $what"
  else
    echo "FAILED: $what"
    failures=$((failures + 1))
  fi
}

if ! (cd "$build" && cpack -G DEB -B "$work/out" >"$work/cpack.log" 2>&1); then
  cat "$work/cpack.log"
  exit 1
fi
deb=$(ls "$work"/out/quillbox_*.deb)
dpkg-deb --field "$deb" Package Version Architecture Depends Recommends >"$work/fields"
cat "$work/fields"
version=$(dpkg-deb --field "$deb" Version)
depends=$(dpkg-deb --field "$deb" Depends)
check "the package is named quillbox" grep -qx "Package: quillbox" "$work/fields"
for library in libqt6widgets6 libqt6svg6 qt6-qpa-plugins libsqlite3-0 libpugixml1v5; do
  check "it depends on $library" grep -q "$library" <<<"$depends"
done

root="$work/root"
dpkg -x "$deb" "$root"
for file in usr/bin/quillbox usr/bin/quillbox-desk usr/share/applications/quillbox.desktop \
  usr/share/icons/hicolor/scalable/apps/quillbox.svg usr/share/man/man1/quillbox.1.gz \
  usr/share/doc/quillbox/copyright; do
  check "it installs /$file" test -s "$root/$file"
done
check "nothing is installed outside /usr" test "$(ls "$root")" = usr

# The desktop entry: valid, and naming what the package installs.
entry="$root/usr/share/applications/quillbox.desktop"
check "the desktop entry is valid" desktop-file-validate "$entry"
exec_name=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$entry")
icon_name=$(sed -n 's/^Icon=//p' "$entry")
check "its Exec names an installed program" test -x "$root/usr/bin/$exec_name"
check "its Icon names the installed icon" test -s \
  "$root/usr/share/icons/hicolor/scalable/apps/$icon_name.svg"

# The manual page reads, with every command of the tool.
check "the manual page formats" sh -c "man -l '$root/usr/share/man/man1/quillbox.1.gz' >'$work/man.txt'"
check "it describes the clients command" grep -q "quillbox clients \[--db FILE\]" "$work/man.txt"

# The installed tool.
tool="$root/usr/bin/quillbox"
check "quillbox --version names the package's version" \
  test "$("$tool" --version)" = "quillbox $version"
check "quillbox init makes the sample firm" "$tool" init --db "$work/firm.db" --sample
check "quillbox clients lists its clients" \
  grep -qx $'2\tcompany\tMaple Leaf Bakery Ltd.' <("$tool" clients --db "$work/firm.db")

# The installed desktop program renders the client screen (offscreen), with
# its icons embedded; the picture goes beside the GUI tests' screenshots.
mkdir -p "$build/screenshots"
check "quillbox-desk shows the sample firm" env QT_QPA_PLATFORM=offscreen \
  XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work" "$root/usr/bin/quillbox-desk" \
  --db "$work/firm.db" --screenshot "$build/screenshots/installed-quillbox-desk.png"

# make install under a prefix puts the same files there.
cmake --install "$build" --prefix "$work/prefix" >"$work/install.log"
(cd "$root/usr" && find . -type f | sort) >"$work/packaged"
(cd "$work/prefix" && find . -type f | sort) >"$work/installed"
check "make install under a prefix installs what the package does" \
  diff "$work/packaged" "$work/installed"
check "the installed tool runs from the prefix" "$work/prefix/bin/quillbox" --version

if [ "$failures" -ne 0 ]; then
  cat "$work/checks.log"
  exit 1
fi
