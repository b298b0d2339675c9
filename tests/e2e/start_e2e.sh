#!/usr/bin/env bash
# Starts that go wrong, and a copied folder: each tells its box, and nothing of the user's is touched.
source "$(dirname "$0")/session.sh"
start_display
private_home

window_named() { xdotool search --onlyvisible --name "$1"; }
run() { "$work/Kestrile/Kestri" "$@" >"$work/editor.log" 2>&1 & editor=$!; processes+=("$editor"); }
answer() { # window name, key
  await window_named "$1"
  xdotool windowactivate --sync "$(window_named "$1" | tail -n 1)"
  press "$2"
}

# Damaged settings: the box, the end, the file as it was.
settings FontSize=large
cp "$work/Kestrile/Kestri.ini" "$work/before.ini"
run
answer '起動ｴﾗｰ Kestrile' Return
await ended
same_bytes "$work/Kestrile/Kestri.ini" "$work/before.ini"
settings

# A switch that is none: its box, and the editor stays open.
run /XX
answer 'ｽｲｯﾁｴﾗｰ Kestrile' Return
await window_named '無題.htm - Kestrile'
press alt+F4
await ended

# A file that does not exist: its box, and the log has a line.
run "$work/none.htm"
answer '開く Kestrile' Return
grep -q 'none.htm' "$work/Kestrile/Kestri.log" || fail "the log is silent"
press alt+F4
await ended

# The version.
run '/?'
answer '^Kestrile$' Return
await ended

# The folder moved elsewhere, under a name with blanks and Japanese; a page with such a name, too.
mv "$work/Kestrile" "$work/持ち運び 用"
page="$work/\"日記\" 1 月.htm"
printf 'x\r\n' >"$page"
"$work/持ち運び 用/Kestri" "$page" >"$work/editor.log" 2>&1 &
editor=$!
processes+=("$editor")
await window_named '日記'
xdotool windowactivate --sync "$(window_named '日記' | tail -n 1)"
sleep 0.2
press y ctrl+s
saved() { [ "$(cat "$page")" = "$(printf 'yx\r')" ]; }
await saved
press alt+F4
await ended
echo "ok"
