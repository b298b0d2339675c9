#!/usr/bin/env bash
# A day of editing by real keys: a document from a template, conversions, brackets, a save slot, the question at the
# end, the history, a second window, the list of windows, and a page saved with CR; every file compared by its bytes.
source "$(dirname "$0")/session.sh"
start_display
private_home
cd "$work"

printf '<HTML>\r\n\t\r\n</HTML>\r\n' >"$work/Kestrile/DataFiles/NewData3.fmtdat"
page_of() { # what stands between the tags, in UTF-8
  printf '<HTML>\r\n%s\r\n</HTML>\r\n' "$1" | iconv -f utf-8 -t cp932
}
file_named() { # the path that a file dialog asks for
  xdotool key --clearmodifiers ctrl+a
  xdotool type --clearmodifiers -- "$1"
  press Return
}
active_is() { [ "$(xdotool getactivewindow)" = "$1" ]; }

# A new document from the template, with the caret where the template wants it.
start_editor
press alt+f k 3
xdotool type --clearmodifiers -- 'abc 123'

# The words in full width, a second line in brackets.
press shift+Home alt+Left Down Down Down Down Down Down Return
press End Return n o t e shift+Home alt+Right k Return
page_of "$(printf 'ａｂｃ　１２３\r\n｢note｣')" >"$work/expected.htm"

# The snapshot in slot 0.
press ctrl+shift+k
slot="$work/Kestrile/SlotSave/無題.htm.s00"
await cmp "$slot" "$work/expected.htm"

# The end asks; yes, under this name.
press alt+F4
dialog '^終了'
press y
dialog '名前を付けて保存'
file_named "$work/day.htm"
await ended
same_bytes "$work/day.htm" "$work/expected.htm"

# The next start finds it in the history.
start_editor
first=$window
first_editor=$editor
press alt+f Up Up Up Up Up Right 0
await title_has 'day.htm'

# A second window by its key, and back to the first by the list of windows.
press ctrl+shift+n
second_opened() { [ "$(xdotool search --onlyvisible --name '無題.htm - Kestrile' | wc -l)" = 1 ]; }
await second_opened
second=$(xdotool search --onlyvisible --name '無題.htm - Kestrile')
xdotool windowactivate --sync "$second"
await active_is "$second"
press alt+v w
dialog 'ｳｨﾝﾄﾞｳの呼び出し'
press Return
await active_is "$first"

# The page again with CR as its line end, under another name.
press alt+Right e Down Return ctrl+shift+s
dialog '名前を付けて保存'
file_named "$work/cr.htm"
{ tr -d '\n' <"$work/expected.htm"; printf '\n'; } >"$work/expected-cr.htm" # the last line's end stays CR LF
await cmp "$work/cr.htm" "$work/expected-cr.htm"
same_bytes "$work/day.htm" "$work/expected.htm"
await title_has 'cr.htm'

press alt+F4
editor=$first_editor
await ended
await xdotool windowactivate --sync "$second"
await active_is "$second"
press alt+F4
second_closed() { ! xdotool search --name '無題.htm - Kestrile'; }
await second_closed
echo "ok"
