#!/usr/bin/env bash
# The folder bar by the keyboard alone: from the text to the tree, down into a folder, to a file, back to the text.
source "$(dirname "$0")/session.sh"
start_display
private_home
site=$work/site
mkdir -p "$site/pages"
printf 'top\r\n' >"$site/top.htm"
printf 'inner\r\n' >"$site/pages/inner.htm"
printf 'picture\n' >"$site/pages/photo.bin"
start_editor "$site/top.htm"
await title_has top.htm
sleep 0.5

# Into the tree, where the folder of the document is chosen; down to "pages", to the list, its only page.
press ctrl+shift+b Right Tab Tab Home Return
await title_has inner.htm
mkdir -p "$root/build/screens"
screenshot "$root/build/screens/folder-bar.png" || true

# The keyboard is in the text again.
press z ctrl+s
inner_saved() { [ "$(cat "$site/pages/inner.htm")" = $'zinner\r' ]; }
await inner_saved

# Esc comes back without a choice; the bar goes and its absence is remembered.
press ctrl+shift+b Escape y ctrl+s
inner_saved_again() { [ "$(cat "$site/pages/inner.htm")" = $'zyinner\r' ]; }
await inner_saved_again
press ctrl+b
hidden() { grep -qF $'DirTree=0\r' "$work/Kestrile/Kestri.ini"; }
await hidden
press alt+F4
await ended
