#!/usr/bin/env bash
# The main window, the floating tool bar and the window of the insert menus stand where they stood, session after
# session; the window of the insert menus gives the keyboard back to the text.
source "$(dirname "$0")/session.sh"
start_display
private_home
settings StartUpWindow=NAW '[Bar]' Dkg=0

visible() { xdotool search --onlyvisible --name "$1" | tail -n 1; }
shown() { [ -n "$(visible "$1")" ]; }
hidden() { ! shown "$1"; }
place() { # left, top, width and height of a window's inside
  xwininfo -id "$1" | sed -n 's/^ *\(Absolute upper-left [XY]\|Width\|Height\): *//p' | tr '\n' ' '
}
places() { echo "$(place "$window")| $(place "$(visible '^ToolBar for ')")| $(place "$(visible '^MenuBar for ')")"; }
places_are() { [ "$(places)" = "$1" ]; }
insert_menus_active() { [ "$(xdotool getwindowfocus)" = "$(visible '^MenuBar for ')" ]; }
insert_menus() {
  press alt+o m
  await insert_menus_active
}
open_windows() {
  start_editor "$page"
  await title_has 'page.htm'
  await shown '^ToolBar for '
  insert_menus
}
close_windows() {
  xdotool windowactivate --sync "$window"
  press alt+F4
  await ended
}

page="$work/page.htm"
printf '\r\n' >"$page"
open_windows

# An entry, and Esc: what is typed next goes into the text.
press alt+m Return
await focused
press x
insert_menus
press Escape
await hidden '^MenuBar for '
await focused
press y ctrl+s
printf '&lt;xy\r\n' >"$work/expected.htm"
await cmp "$page" "$work/expected.htm"

# Moved by the user; then every window stays, over a second opening and over three sessions.
insert_menus
for move in "$window 180 240" "$(visible '^ToolBar for ') 220 120" "$(visible '^MenuBar for ') 300 420"; do
  xdotool windowmove --sync $move
done
sleep 0.3 # until the editor has heard of it
expected=$(places)
press Escape
await hidden '^MenuBar for '
insert_menus
await places_are "$expected"
mkdir -p "$root/build/screens"
screenshot "$root/build/screens/window-places.png"
close_windows
for session in 1 2 3; do
  open_windows
  sleep 0.3 # the frames come last
  equal "$(places)" "$expected"
  close_windows
done
echo "ok"
