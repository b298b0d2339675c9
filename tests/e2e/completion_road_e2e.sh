#!/usr/bin/env bash
# Every way through the popup on the staged program by real keys, one line of the page each; the saved bytes compared.
source "$(dirname "$0")/session.sh"
start_display
private_home

dictionary() { iconv -t cp932 | sed 's/$/\r/' >"$work/Kestrile/DataFiles/$1"; }
dictionary SelectTAG.lib <<'END'
[NAME]
001=A
002=P
003=BR
[EXPLAIN]
001=リンク
END
dictionary Option.lib <<'END'
[PRO]
001=href
002=align
003=onclick
004=!!nowrap
END
dictionary Param.lib <<'END'
[PARAM]
001=left
002=center
END
dictionary FabStr.lib <<'END'
[FabStr]
FabStr000=お気に入り
END
settings ValFabStr=1

page="$work/road.htm"
printf '\r\n' >"$page"
start_editor "$page"
await title_has 'road.htm'

press less a Return End Return                              # chosen by prefix and Enter
press less p Tab space a l Tab equal c Return End Return    # tag, attribute and value by Tab and Enter
press less slash a Return End Return                        # a closing tag
press less a Escape Return                                  # Esc leaves what was typed
press less BackSpace x Return                               # Backspace past the start closes
press less p Return space b r Return End Return             # only a ghosted row fits
press less p Return space h r Return                        # a Japanese favourite: the last of the values
press equal Down Down Down Down Down Down Down Down Down Down Down Return End Return
press less a Return space h r Return equal quotedbl Escape quotedbl Left alt+t Down Down Return Return End Return
press ctrl+s

sed 's/$/\r/' <<'END' | iconv -t cp932 >"$work/expected.htm"
<A>
<P align="center">
</A>
<a
x
<P BR>
<P href="お気に入り">
<A href="left">

END
saved() { [ "$(wc -c <"$page")" -gt 60 ]; }
await saved
sleep 0.2
same_bytes "$page" "$work/expected.htm"
press alt+F4
echo "ok"
