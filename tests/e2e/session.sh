# A virtual display with a window manager and the staged program in it. Sourced by the end-to-end scripts.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
stage=${KESTRI_STAGE:-$root/build/Kestrile}
work=$(mktemp -d)
processes=()

finish() {
  local process
  for process in "${processes[@]}"; do kill "$process" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap finish EXIT

# Wait until a command succeeds, at most 20 seconds.
await() {
  local i
  for i in $(seq 400); do
    if "$@" >/dev/null 2>&1; then return 0; fi
    sleep 0.05
  done
  echo "gave up waiting for: $*" >&2
  screenshot "$root/build/e2e-failure.png" || true
  return 1
}

start_display() {
  exec {display_pipe}<> <(:)
  Xvfb -displayfd "$display_pipe" -screen 0 "${1:-1280x900x24}" -nolisten tcp >"$work/xvfb.log" 2>&1 &
  processes+=($!)
  local number
  read -r -t 20 number <&"$display_pipe"
  export DISPLAY=":$number"
  unset WAYLAND_DISPLAY
  await window_manager_answers
}

# A window manager that ended before it took the display over is started again.
window_manager=
window_manager_answers() {
  if [ -z "$window_manager" ] || ! kill -0 "$window_manager"; then
    openbox --sm-disable >>"$work/openbox.log" 2>&1 &
    window_manager=$!
    processes+=("$window_manager")
    sleep 0.2
  fi
  [[ $(xprop -root _NET_SUPPORTED) == *_NET_ACTIVE_WINDOW* ]]
}

# A home of its own, and a copy of the staged folder: nothing of the user's is touched.
private_home() {
  export HOME="$work/home" XDG_STATE_HOME="$work/home/state" XDG_DATA_HOME="$work/home/data"
  export XDG_CONFIG_HOME="$work/home/config" XDG_RUNTIME_DIR="$work/run" LC_ALL=C.UTF-8
  mkdir -p "$HOME" "$XDG_RUNTIME_DIR"
  chmod 700 "$XDG_RUNTIME_DIR"
  cp -a "$stage" "$work/Kestrile"
  settings
}

# The copy's settings: a start without the warning and the splash, room beside the editors of other sessions, the
# given lines of [Setting], and further sections behind them.
settings() {
  printf '%s\r\n' '[RunArt]' 'RunArt=1' '[Setting]' 'TopWinShow=0' 'AppECount=99' "$@" >"$work/Kestrile/Kestri.ini"
}

# Start the editor on the given arguments and wait for its window to hold the focus.
start_editor() {
  "$work/Kestrile/Kestri" "$@" >"$work/editor.log" 2>&1 &
  editor=$!
  processes+=("$editor")
  await xdotool search --onlyvisible --name 'Kestrile'
  window=$(xdotool search --onlyvisible --name 'Kestrile' | tail -n 1)
  xdotool windowactivate --sync "$window"
  await focused
}

# Wait for a dialog by its title and give it the keyboard.
dialog() {
  await xdotool search --onlyvisible --name "$1"
  dialog=$(xdotool search --onlyvisible --name "$1" | tail -n 1)
  xdotool windowactivate --sync "$dialog"
}
ended() { ! kill -0 "$editor" 2>/dev/null; }

focused() { [ "$(xdotool getwindowfocus)" = "$window" ]; }
title() { xdotool getwindowname "$window"; }
title_has() { title | grep -qF -- "$1"; }
screenshot() { import -window root "$1"; }

# Keys one by one, each as its own press, as fast as the server takes them.
press() {
  local key
  for key in "$@"; do xdotool key --clearmodifiers "$key"; done
}

fail() {
  echo "FAILED: $*" >&2
  screenshot "$root/build/e2e-failure.png" || true
  exit 1
}

equal() { [ "$1" = "$2" ] || fail "expected '$2', got '$1'"; }
same_bytes() { cmp "$1" "$2" || fail "$1 differs from $2"; }
