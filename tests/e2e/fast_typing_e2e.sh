#!/usr/bin/env bash
# Keys typed as fast as the server takes them, straight through the popup, give the same bytes as slow ones.
source "$(dirname "$0")/session.sh"
start_display
private_home

typed='<a href="x.html" <b></b><p align=left'

type_into() { # file, milliseconds between keys
  printf '\r\n' >"$1"
  start_editor "$1"
  await title_has "$(basename "$1")"
  xdotool type --clearmodifiers --delay "$2" -- "$typed"
  press Escape ctrl+s
  await grep -q left "$1"
  sleep 0.2
  press alt+F4
  await ended
}

type_into "$work/fast.htm" 0
type_into "$work/slow.htm" 120
same_bytes "$work/fast.htm" "$work/slow.htm"
printf '%s\r\n' "$typed" >"$work/expected.htm"
same_bytes "$work/fast.htm" "$work/expected.htm"
echo "ok"
