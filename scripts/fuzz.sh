#!/usr/bin/env bash
# `make fuzz`: runs every fuzz target of a fuzz build for a bounded time from
# its seed corpus. Fails on the first target that finds a crash, a leak, a
# sanitizer report or an input slower than a second.
set -euo pipefail
build=${1:-build-fuzz}
seconds=${2:-60}
source=$(cd "$(dirname "$0")/.." && pwd)/tests/fuzz
mkdir -p "$build/artifacts"
status=0
for target in "$build"/fuzz_*; do
  [ -x "$target" ] || continue
  name=$(basename "$target")
  name=${name#fuzz_}
  corpus="$build/corpus/$name"
  mkdir -p "$corpus"
  options=(-max_total_time="$seconds" -timeout=1 -rss_limit_mb=2048 -print_final_stats=1
           -artifact_prefix="$build/artifacts/$name-")
  if [ -f "$source/$name.dict" ]; then options+=(-dict="$source/$name.dict"); fi
  echo "== fuzz $name for ${seconds}s"
  if ! "$target" "${options[@]}" "$corpus" "$source/corpus/$name" > "$build/$name.log" 2>&1; then
    echo "fuzz $name failed; the input is under $build/artifacts:"
    tail -n 60 "$build/$name.log"
    status=1
  else
    grep -E "stat::number_of_executed_units|stat::peak_rss_mb" "$build/$name.log" || true
  fi
done
exit $status
