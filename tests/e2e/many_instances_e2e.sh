#!/usr/bin/env bash
# Thirty editors started at once: each has a number of its own in the log, every start is counted, and when all of them
# are asked to end at once, the log goes, no key of the settings is lost and nothing is left that is not whole.
source "$(dirname "$0")/session.sh"
private_home
export QT_QPA_PLATFORM=offscreen
log=$XDG_STATE_HOME/kestrile/Kestri_TEMP_FileLog.INI
ini=$work/Kestrile/Kestri.ini
count=30
printf 'x\r\n' >"$work/page.htm"
settings '; of another program'
printf '%s\r\n' '[Own]' 'key=value' >>"$ini"

editors=()
for i in $(seq $count); do
  "$work/Kestrile/Kestri" "$work/page.htm" >"$work/editor$i.log" 2>&1 &
  editors+=($!)
done
processes+=("${editors[@]}")

handles() { sed -n 's/^[0-9]*HWND=\([0-9]*\)\r*$/\1/p' "$log" | sort -n; }
files() { grep -c "FILE=$work/page.htm" "$log"; }
all_started() { [ "$(handles | wc -l)" -eq $count ] && [ "$(files)" -eq $count ] && grep -q "^Act=$count" "$ini"; }
all_listen() {
  local one
  for one in "${editors[@]}"; do
    (( 0x$(sed -n 's/^SigCgt:\t//p' "/proc/$one/status") & 1 << 14 )) || return 1
  done
}
await all_started
equal "$(handles)" "$(printf '%s\n' "${editors[@]}" | sort -n)"
numbers=$(sed -n 's/^\([0-9]*\)HWND=.*/\1/p' "$log" | sort -n)
equal "$numbers" "$(seq -f %03g $count)"
await all_listen

kill "${editors[@]}"
none_left() { ! kill -0 "${editors[@]}" 2>/dev/null; }
await none_left
[ ! -e "$log" ] || fail "the log was not left: $(cat "$log")"
for line in 'RunArt=1' 'TopWinShow=0' '; of another program' 'key=value' "Act=$count" 'DragModeTrue=1' "NawPath=$work"; do
  grep -qF "$line"$'\r' "$ini" || fail "the settings lost $line: $(cat "$ini")"
done
equal "$(grep -c '^DragModeTrue=' "$ini")" 1
equal "$(find "$work/Kestrile" "$XDG_STATE_HOME" -name '.kestrile-*' | wc -l)" 0
