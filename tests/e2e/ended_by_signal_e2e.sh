#!/usr/bin/env bash
# A process that is asked to end closes its window as the close button does: settings are written and the log of the
# instances is left; an unsaved document is asked for first, and only one more signal ends it at once.
source "$(dirname "$0")/session.sh"
start_display
private_home
log=$XDG_STATE_HOME/kestrile/Kestri_TEMP_FileLog.INI
page=$work/page.htm
ini=$work/Kestrile/Kestri.ini

question() { xdotool search --onlyvisible --name '^終了  Kestrile$'; }
no_question() { ! question; }
alive() { kill -0 "$editor" 2>/dev/null; }
written() { grep -qF $'DragModeTrue=1\r' "$ini"; }
# The handler of SIGTERM stands.
listens() { (( 0x$(sed -n 's/^SigCgt:\t//p' "/proc/$editor/status") & 1 << 14 )); }
logged() { grep -qF "FILE=$page" "$log"; }
exit_code() { local code=0; wait "$editor" || code=$?; echo "$code"; }

start_on_page() {
  settings
  printf 'x\r\n' >"$page"
  start_editor "$page"
  await logged
  await listens
  written && fail "settings were written before the end"
  true
}
change() {
  press a
  await title_has '(変更)'
}

# Nothing unsaved: each of them ends the process in good order.
for signal in TERM HUP; do
  start_on_page
  kill -s "$signal" "$editor"
  await ended
  equal "$(exit_code)" 0
  written || fail "SIG$signal: no settings were written"
  [ ! -e "$log" ] || fail "SIG$signal: the log was not left"
done

# Unsaved: the question shows and the process stays; a user who stays goes on writing.
start_on_page
change
kill "$editor"
await question
alive || fail "ended without an answer"
screenshot "$root/build/screens/ended-by-signal.png" || true
dialog '^終了  Kestrile$'
press Escape
await no_question
sleep 0.3
alive || fail "ended although the user stays"
written && fail "settings were written although the user stays"
logged || fail "the log was left although the user stays"
xdotool windowactivate --sync "$window"
await focused
press b ctrl+s
saved() { [ "$(cat "$page")" = $'abx\r' ]; }
await saved

# The next signal ends the saved document.
kill "$editor"
await ended
equal "$(exit_code)" 0
written || fail "no settings were written"

# Unsaved under an open menu, and saved by the answer.
start_on_page
change
press alt+f
sleep 0.3
press Down
sleep 0.3
kill "$editor"
dialog '^終了  Kestrile$'
press Return
await ended
equal "$(cat "$page")" $'ax\r'
written || fail "no settings were written"

# One more signal within the question ends the process at once.
start_on_page
change
kill "$editor"
await question
kill "$editor"
await ended
equal "$(exit_code)" 143
equal "$(cat "$page")" $'x\r'

# Under the list that a start ends with.
settings
"$work/Kestrile/Kestri" /SN >"$work/editor.log" 2>&1 &
editor=$!
processes+=("$editor")
dialog '^新規作成$'
await listens
kill "$editor"
await ended
equal "$(exit_code)" 0
written || fail "no settings were written"
echo "ok"
