#!/usr/bin/env bash
# The main job on a sample page in a virtual display: prints the resulting HTML and leaves build/demo.png.
source "$(dirname "$0")/session.sh"
start_display
private_home

page=${1:-}
if [ -z "$page" ]; then
  page="$work/sample.htm"
  cp "$root/tests/data/sample.htm" "$page"
fi

start_editor "$page"
await title_has "$(basename "$page")"
press ctrl+Home End Return
press less a Return
press space h r e f Tab
press equal
press quotedbl i n d e x period h t m l quotedbl Escape
press ctrl+s
sleep 0.5
press End Return less i
sleep 0.5
screenshot "$root/build/demo.png"
press Escape BackSpace BackSpace
iconv -f cp932 -t utf-8 "$page"
echo
echo "picture: build/demo.png"
