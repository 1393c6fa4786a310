#!/usr/bin/env bash
# Runs a command on an X server of its own, as a plain office machine or a
# remote session shows programs: Xvfb with the openbox window manager, and no
# desktop environment, so that nothing chooses an icon theme, a style or a
# font for the program. The server goes when the command ends.
#
#   run-under-x.sh [--scale FACTOR] COMMAND [ARGUMENTS...]
#
# --scale runs the program at that scale factor (2 for a high-resolution
# screen at 200%).
set -euo pipefail

scale=""
if [ "${1:-}" = "--scale" ]; then
  scale=$2
  shift 2
fi
if [ $# -eq 0 ]; then
  echo "usage: run-under-x.sh [--scale FACTOR] COMMAND [ARGUMENTS...]" >&2
  exit 2
fi
for tool in Xvfb openbox; do
  if ! command -v "$tool" >/dev/null; then
    echo "run-under-x: $tool is missing (scripts/install-deps.sh installs it)" >&2
    exit 2
  fi
done

work=$(mktemp -d)
xvfb=""
wm=""
cleanup() {
  if [ -n "$wm" ]; then kill "$wm" 2>/dev/null || true; fi
  if [ -n "$xvfb" ]; then kill "$xvfb" 2>/dev/null || true; fi
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# Xvfb picks a free display and writes its number, so runs side by side
# don't collide.
# Waits up to ten seconds for a starting program to write a file, and shows
# that program's log when it does not.
await() {  # await FILE PROGRAM LOG
  for _ in $(seq 200); do
    if [ -s "$1" ]; then return 0; fi
    sleep 0.05
  done
  echo "run-under-x: $2 did not start:" >&2
  cat "$3" >&2
  exit 1
}

Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
xvfb=$!
await "$work/display" Xvfb "$work/xvfb.log"
export DISPLAY=":$(cat "$work/display")"

# Nothing of a desktop session reaches the program.
unset XDG_CURRENT_DESKTOP XDG_SESSION_DESKTOP DESKTOP_SESSION KDE_FULL_SESSION \
  GNOME_DESKTOP_SESSION_ID QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE QT_SCALE_FACTOR \
  QT_SCREEN_SCALE_FACTORS QT_AUTO_SCREEN_SCALE_FACTOR QT_ENABLE_HIGHDPI_SCALING \
  QT_FONT_DPI WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
export XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
if [ -n "$scale" ]; then export QT_SCALE_FACTOR="$scale"; fi

# The window manager tells when it manages the screen.
XDG_CONFIG_HOME="$work/wm" openbox --startup "sh -c 'echo ready >$work/wm-ready'" >"$work/wm.log" 2>&1 &
wm=$!
await "$work/wm-ready" openbox "$work/wm.log"

status=0
"$@" || status=$?
exit $status
