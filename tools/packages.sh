# The one list of Debian packages that building, running and testing need. Sourced by run.sh and test.sh.

KESTRI_PACKAGES=(
  # build
  g++ clang-14 libclang-rt-14-dev clang-format-14 cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-svg-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  libxcb1-dev libxcb-damage0-dev libxcb-xtest0-dev libxcb-keysyms1-dev
  # program: Japanese fonts, icons, the toolkit's Japanese words, file types, opening files
  fonts-ipafont-gothic fonts-monapo tango-icon-theme qt6-translations-l10n shared-mime-info xdg-utils
  # real window without a display
  xvfb xauth openbox xdotool x11-utils x11-apps imagemagick
)

install_packages() {
  local missing=() package
  for package in "${KESTRI_PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then as_root=(sudo); fi
  echo "installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
