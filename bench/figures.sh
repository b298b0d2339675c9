#!/usr/bin/env bash
# Prints the whole-process figures of the staged program, medians of several runs on a display of its own:
#   bench/figures.sh [STAGED_FOLDER [TOOLS_FOLDER]]
# Build first: cmake --build --preset release --target benchmarks
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
stage=${1:-$root/build/Kestrile}
tools=${2:-$root/build/release/bench}
work=$(mktemp -d)
trap 'kill "$display" 2>/dev/null || true; rm -rf "$work"' EXIT

# A copy that starts without the warning and the splash.
cp -a "$stage" "$work/Kestrile"
printf '%s\r\n' '[RunArt]' 'RunArt=1' '[Setting]' 'TopWinShow=0' 'AppECount=99' >"$work/Kestrile/Kestri.ini"
# Dictionaries as long as they may be.
table() { # section, word
  printf '[%s]\r\n' "$1"
  for row in $(seq -f %03g 999); do printf '%s=%s%s\r\n' "$row" "$2" "$row"; done
}
(table NAME TAG; table EXPLAIN words; table DEFTAG 'TAG title=') >"$work/Kestrile/DataFiles/SelectTAG.lib"
(table PRO attribute; table EXPLAIN words) >"$work/Kestrile/DataFiles/Option.lib"
table PARAM value >"$work/Kestrile/DataFiles/Param.lib"
program=$work/Kestrile/Kestri
tool=$tools/figures

export HOME=$work XDG_STATE_HOME=$work XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
chmod 700 "$work"
exec {pipe}<> <(:)
Xvfb -displayfd "$pipe" -screen 0 1280x900x24 -nolisten tcp -noreset >"$work/xvfb.log" 2>&1 &
display=$!
read -r -t 20 number <&"$pipe"
export DISPLAY=":$number"

line='<P class="note">駅から川沿いの道を歩きました。桜はまだ三分咲きです。<A href="album.html">album</A></P>'
printf '%s\r\n' "$line" | iconv -f utf-8 -t cp932 >"$work/line"
page() { # bytes, path
  local rows=$(($1 / $(wc -c <"$work/line") + 1))
  LC_ALL=C awk -v rows="$rows" '{ for (i = 0; i < rows; i++) print }' "$work/line" >"$2"
}
page 2000 "$work/small.htm"
page 10000000 "$work/10.htm"
page 100000000 "$work/100.htm"

# Median of each column over seven runs.
median() {
  local i
  for i in 1 2 3 4 5 6 7; do "$@"; done | awk '
    { for (c = 1; c <= NF; c++) v[c, NR] = $c; columns = NF }
    END {
      for (c = 1; c <= columns; c++) {
        for (i = 1; i <= NR; i++) for (j = i + 1; j <= NR; j++)
          if (v[c, j] + 0 < v[c, i] + 0) { t = v[c, i]; v[c, i] = v[c, j]; v[c, j] = t }
        printf "%s ", v[c, int((NR + 1) / 2)]
      }
      print ""
    }'
}

report() { # words, figures...
  local words=$1
  shift
  printf '%-44s %s\n' "$words" "$("$@")"
}

echo 'wall ms, CPU ms, resident MB, private MB'
report 'start, empty page' median "$tool" "$program" start
report 'open 10 MB' median "$tool" "$program" start "$work/10.htm"
report 'open 100 MB' median "$tool" "$program" start "$work/100.htm"
echo 'median ms, worst ms'
report 'one key to painted, small page' "$tool" "$program" key "$work/small.htm"
report 'one key to painted, middle of 100 MB' "$tool" "$program" key "$work/100.htm"
echo 'first ms, later ms'
report '"<" to popup painted' "$tool" "$program" popup "$work/small.htm"
report '"<" to popup painted, 10 MB page' "$tool" "$program" popup "$work/10.htm"
echo 'ms'
report 'save 100 MB' "$tool" "$program" save "$work/100.htm"
echo 'percent of one core over 20 s'
report 'page open, nobody typing' "$tool" "$program" idle "$work/small.htm"
echo 'resident MB after 50, 500 and 1,000 documents, growth in percent'
report 'open, edit, save' env QT_LOGGING_RULES='*=false' "$tools/editing_memory"
