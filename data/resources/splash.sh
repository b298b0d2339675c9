#!/usr/bin/env bash
# Draws splash.jpg from splash.svg, at twice the size that the window has: data/resources/splash.sh
# Needs rsvg-convert (librsvg2-bin) and convert (imagemagick).
set -euo pipefail
cd "$(dirname "$0")"
rsvg-convert --width 960 --height 600 splash.svg | convert png:- -strip -quality 86 -interlace none splash.jpg
