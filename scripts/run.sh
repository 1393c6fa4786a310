#!/usr/bin/env bash
# `make run`: opens the product on the embedded sample database, creating the
# sample firm on first use. Without a display the window renders offscreen and
# writes a screenshot.
set -euo pipefail
build=${1:-build}
data=${QB_DATA_DIR:-$build/sample}
db="$data/quillbox-sample.db"
if [ ! -f "$db" ]; then
  "$build/quillbox" init --db "$db" --sample
elif ! "$build/quillbox" describe --db "$db" >/dev/null 2>&1; then
  # A sample database an older build made, or one left damaged: made afresh.
  echo "Making the sample database again: $("$build/quillbox" describe --db "$db" 2>&1 | head -1)"
  "$build/quillbox" init --db "$db" --sample --force
fi
if [ -x "$build/quillbox-desk" ]; then
  if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    export QT_QPA_PLATFORM=offscreen
  fi
  exec "$build/quillbox-desk" --db "$db"
else
  exec "$build/quillbox" describe --db "$db"
fi
