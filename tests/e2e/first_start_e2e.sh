#!/usr/bin/env bash
# The very first start: the warning of the system, the splash, the editor; the next start without the warning; and the
# starts with a switch. Pictures of what was seen are left in build/screens.
source "$(dirname "$0")/session.sh"
start_display
private_home
printf '%s\r\n' '[Setting]' 'AppECount=99' >"$work/Kestrile/Kestri.ini"
screens=$root/build/screens
mkdir -p "$screens"

run() { "$work/Kestrile/Kestri" "$@" >"$work/editor.log" 2>&1 & editor=$!; processes+=("$editor"); }
splash() {
  local id
  for id in $(xdotool search --onlyvisible --class Kestri); do
    xprop -id "$id" _NET_WM_WINDOW_TYPE | grep -q SPLASH && return
  done
  return 1
}
# The splash stands only while the editor loads: the picture is taken when it is seen.
picture_of_splash() {
  local i
  for i in $(seq 200); do
    if splash 2>/dev/null; then
      screenshot "$screens/start-splash.png"
      return
    fi
  done
}
editor_window() { xdotool search --onlyvisible --name ' - Kestrile'; }
close_editor() {
  await editor_window
  xdotool windowactivate --sync "$(editor_window | tail -n 1)"
  press alt+F4
  await ended
}

# The first time: the warning, then the editor.
run
dialog '^Kestrile$'
editor_window && fail "the editor stands before the warning is answered"
screenshot "$screens/start-warning.png"
picture_of_splash &
watching=$!
press Return
await editor_window
kill "$watching" 2>/dev/null || true
screenshot "$screens/start-editor.png"
close_editor
grep -qF $'RunArt=1\r' "$work/Kestrile/Kestri.ini" || fail "the warning would come again"

# The second time nothing asks.
run
await editor_window
close_editor

# New documents, recent files: each list over the editor, Esc leaves the editor alone.
run /SN
dialog '^新規作成$'
screenshot "$screens/start-SN.png"
press Escape
close_editor
run /sf
dialog '^最近使用したﾌｧｲﾙ$'
screenshot "$screens/start-SF.png"
press Escape
close_editor

# A new document out of the list.
run /SN
dialog '^新規作成$'
press Down Return
await editor_window
close_editor

# The version, without an editor.
run '/?'
dialog '^Kestrile$'
screenshot "$screens/start-version.png"
press Return
await ended

# A switch that is none.
run /XX
dialog '^ｽｲｯﾁｴﾗｰ Kestrile$'
screenshot "$screens/start-unknown-switch.png"
press Return
close_editor
echo "ok"
