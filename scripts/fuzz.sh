#!/usr/bin/env bash
# `make fuzz`: runs every fuzz target of a fuzz build for a bounded time from
# its seed corpus, as many at once as there are cores (FUZZ_JOBS to choose),
# so the whole run costs about a minute per core's share of the targets.
# Fails when any target finds a crash, a leak, a sanitizer report or an input
# slower than a second.
set -euo pipefail
build=${1:-build-fuzz}
seconds=${2:-60}
jobs=${FUZZ_JOBS:-$(nproc)}
source=$(cd "$(dirname "$0")/.." && pwd)/tests/fuzz
mkdir -p "$build/artifacts"

# Runs one target; its output goes to its own log, read once all have ended.
run_target() {
  local target=$1 name=$2
  local corpus="$build/corpus/$name"
  mkdir -p "$corpus"
  local options=(-max_total_time="$seconds" -timeout=1 -rss_limit_mb=2048 -print_final_stats=1
                 -artifact_prefix="$build/artifacts/$name-")
  if [ -f "$source/$name.dict" ]; then options+=(-dict="$source/$name.dict"); fi
  if "$target" "${options[@]}" "$corpus" "$source/corpus/$name" > "$build/$name.log" 2>&1; then
    echo 0 > "$build/$name.status"
  else
    echo 1 > "$build/$name.status"
  fi
}

names=()
for target in "$build"/fuzz_*; do
  [ -x "$target" ] || continue
  name=$(basename "$target")
  name=${name#fuzz_}
  names+=("$name")
  rm -f "$build/$name.status"
  while [ "$(jobs -rp | wc -l)" -ge "$jobs" ]; do wait -n || true; done
  echo "== fuzz $name for ${seconds}s"
  run_target "$target" "$name" &
done
wait

status=0
for name in "${names[@]}"; do
  if [ "$(cat "$build/$name.status" 2>/dev/null || echo 1)" != 0 ]; then
    echo "fuzz $name failed; the input is under $build/artifacts:"
    tail -n 60 "$build/$name.log"
    status=1
  else
    echo "-- $name: $(grep -E "stat::number_of_executed_units" "$build/$name.log" | awk '{print $2}') inputs"
  fi
done
exit $status
