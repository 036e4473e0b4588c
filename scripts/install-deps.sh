#!/usr/bin/env bash
# Installs the Debian 12 packages that are missing, if any:
#   scripts/install-deps.sh run    what building and running the programs needs (./run.sh)
#   scripts/install-deps.sh test   that, and what the tests and checks need (./test.sh)
# Uses sudo when not run as root.
set -euo pipefail

# The fonts give the interface's Chinese, Japanese, Korean and Thai texts their glyphs.
run_packages=(
  build-essential cmake pkg-config
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-qpa-plugins
  libhidapi-dev libgl-dev libpulse-dev libudev-dev
  fonts-noto-cjk fonts-thai-tlwg
)
# The Windows platform layer's syntax check; the installed hub under a virtual display; the
# desktop entry, metainfo and manual page checks; the package's build (dpkg-shlibdeps, file);
# a private sound server with a tone for the loopback capture's test.
test_packages=(
  g++-mingw-w64-x86-64-posix
  xvfb xauth
  pulseaudio pulseaudio-utils sox
  appstream desktop-file-utils groff-base
  dpkg-dev file
)

case "${1:-}" in
run) packages=("${run_packages[@]}") ;;
test) packages=("${run_packages[@]}" "${test_packages[@]}") ;;
*)
  echo "usage: $0 run|test" >&2
  exit 2
  ;;
esac

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

if ! command -v apt-get >/dev/null; then
  echo "missing packages: ${missing[*]} (no apt-get here: install them by hand)" >&2
  exit 1
fi
sudo=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "missing packages: ${missing[*]} (run as root or install sudo)" >&2
    exit 1
  fi
  sudo=(sudo)
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -q
"${sudo[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
