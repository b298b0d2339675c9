#!/usr/bin/env bash
# Installs what is missing, builds and starts the editor: ./run.sh [FILE]
# Without a display a virtual one is started, the main job is played by real key events and build/demo.png is left.
set -euo pipefail
cd "$(dirname "$0")"
source tools/packages.sh
install_packages
source tools/build.sh
build_release

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  exec build/Kestrile/Kestri "$@"
fi
exec tests/e2e/demo.sh "$@"
