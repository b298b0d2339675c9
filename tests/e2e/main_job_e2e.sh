#!/usr/bin/env bash
# The road of one tag on the staged program: a Shift-JIS page, real keys, saved bytes compared, a backup made.
source "$(dirname "$0")/session.sh"
start_display
private_home

page="$work/ページ.htm"
printf '<HTML>\r\n<BODY>\r\n%s\r\n\r\n</BODY>\r\n</HTML>\r\n' "$(printf 'こんにちは。' | iconv -t cp932)" >"$page"
cp "$page" "$work/before.htm"
mkdir "$work/backup"
settings '[Path]' "UserBackUp=$work/backup"

start_editor "$page"
await title_has 'ページ.htm'

# To the empty line; `<`, choose A by prefix, Enter; blank, href by prefix, Tab; `=`, a value, Enter.
press Down Down Down
press less a Return
press space h r e f Tab
press equal underscore b l Return
press ctrl+s

changed() { ! cmp -s "$page" "$work/before.htm"; }
await changed
sleep 0.2

printf '<HTML>\r\n<BODY>\r\n%s\r\n<A href="_blank">\r\n</BODY>\r\n</HTML>\r\n' \
  "$(printf 'こんにちは。' | iconv -t cp932)" >"$work/expected.htm"
same_bytes "$page" "$work/expected.htm"

backups=("$work/backup/"*)
equal "${#backups[@]}" 1
same_bytes "${backups[0]}" "$work/before.htm"
case "$(basename "${backups[0]}")" in
  'ページ['[0-9]*'_'[0-9]*'_'[0-9]*'].htm') ;;
  *) fail "the backup is named ${backups[0]}" ;;
esac

press alt+F4
await ended
echo "ok"
