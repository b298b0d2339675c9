#!/usr/bin/env bash
# What stands on the screen after scrolling is what a painting from nothing shows: on a real display, where rows are
# moved by the server.
source "$(dirname "$0")/session.sh"
start_display
private_home
page=$work/page.htm
for i in $(seq 120); do printf '<p class="note">%d 行目 line %d</p>\r\n' "$i" "$i"; done | iconv -f utf-8 -t cp932 >"$page"
start_editor "$page"
await title_has page.htm
press ctrl+b
sleep 0.5

# The text area only: the clock below it goes on. The caret may be lit in one picture and not in the other.
picture() { import -window "$window" -crop 560x330+0+90 +repage "$1"; }
shows_the_truth() { # what was done
  sleep 0.4
  picture "$work/shown.png"
  press alt+v r
  sleep 0.3
  picture "$work/fresh.png"
  local differing
  differing=$(compare -metric AE "$work/shown.png" "$work/fresh.png" null: 2>&1 || true)
  [ "${differing%%.*}" -le 100 ] || fail "$1: $differing pixels are not what they should be"
}
slowly() { # each key after the one before was painted
  local key
  for key in "$@"; do
    press "$key"
    sleep 0.15
  done
}

slowly $(printf 'Down %.0s' $(seq 40))
shows_the_truth "Down"
slowly ctrl+Home Down Down Return Return Return
shows_the_truth "Return"
slowly BackSpace BackSpace BackSpace
shows_the_truth "BackSpace"
slowly ctrl+End Page_Up Page_Up ctrl+Home Page_Down
shows_the_truth "Page keys"
xdotool mousemove --window "$window" 300 250
for _ in 1 2 3 4; do
  xdotool click 5
  sleep 0.2
done
shows_the_truth "wheel"
slowly ctrl+Home End $(printf 'x %.0s' $(seq 60))
shows_the_truth "typing beyond the right edge"
