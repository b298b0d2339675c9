#!/usr/bin/env bash
# Pictures of every window and dialog, light and dark, at 100 % and 200 %; ends with 1 when a layout has a fault:
#   tests/gallery/gallery.sh [OUT]      default build/screens
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
out=${1:-$root/build/screens}
build=${KESTRI_BUILD:-$root/build/release}
[ -f "$build/build.ninja" ] || cmake -S "$root" --preset release
cmake --build "$build" --target gallery

faults=0
for palette in light dark; do
  for percent in 100 200; do
    "$build/tests/gallery/gallery" "$out" "$palette" "$percent" || faults=1
  done
done
exit "$faults"
