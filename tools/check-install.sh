#!/usr/bin/env bash
# Checks what a user gets from `cmake --install` and from the Debian package, on a configured
# and built tree (default: build/):
#   1. install into a temporary prefix; the desktop entry, metainfo and manual page validate;
#   2. the installed hub starts under a virtual display with --simulate, reads its catalogues
#      and pictures from the prefix and writes only to the user's folders; the installed tool
#      keeps device.ini in the user's config folder;
#   3. with dpkg-deb: `cpack -G DEB` builds the package, its fields and files are checked;
#   4. as root with dpkg: the package installs, the hub starts from /usr, the package is purged
#      again and leaves nothing behind.
# Says what it skipped and why; exits non-zero at the first failure.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "${1:-$here/build}" && pwd)
app_id=org.orbehub.OrbeHub

work=$(mktemp -d)
package_installed=0
cleanup() {
  # Whatever stopped the run, the machine doesn't keep the package.
  [ $package_installed = 1 ] && dpkg --purge orbehub >/dev/null 2>&1
  rm -rf "$work"
}
trap cleanup EXIT

fail() {
  echo "check-install: FAIL: $*" >&2
  exit 1
}
step() { echo "check-install: $*"; }

for tool in xvfb-run appstreamcli desktop-file-validate groff; do
  command -v "$tool" >/dev/null || fail "$tool is missing (scripts/install-deps.sh test installs it)"
done

# Every file under a folder, for before/after comparisons.
listing() { (cd "$1" && find . -type f | sort); }

# Starts the hub of $1 with the virtual keyboards under a virtual display and waits until every
# virtual device has its card; $2 is the folder its shipped files must come from. The user's
# folders and the temporary folder are fresh ones, so a hub already running elsewhere (one hub
# per session) and the user's own settings stay out of it.
check_hub() {
  local hub=$1 data=$2
  local home="$work/home-$RANDOM"
  mkdir -p "$home/tmp" "$home/run"
  chmod 700 "$home/run"
  local log="$home/hub.log"
  HOME="$home" XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data" TMPDIR="$home/tmp" \
    XDG_RUNTIME_DIR="$home/run" QT_LOGGING_RULES="orbe.hub.debug=true" \
    xvfb-run -a -s "-screen 0 1600x1000x24" bash -c '
      "$0" --simulate >"$1" 2>&1 &
      hub=$!
      for _ in $(seq 300); do
        [ "$(grep -c "card picture" "$1")" -ge 6 ] && break
        kill -0 $hub 2>/dev/null || break
        sleep 0.1
      done
      kill $hub 2>/dev/null
      wait $hub || true' "$hub" "$log"

  grep -qF "shipped files in \"$data\"" "$log" || { cat "$log"; fail "$hub did not take its files from $data"; }
  grep -qF "settings in \"$home/config/orbehub\"" "$log" ||
    { cat "$log"; fail "$hub keeps its settings elsewhere than the user's config folder"; }
  # The names come from the shipped catalogue and custom list, the pictures from the prefix.
  for name in "ORBE HE75" "ORBE HE98" "WS Virtual 2.4G" "JM Virtual BT"; do
    grep -qF "new device \"$name\"" "$log" || { cat "$log"; fail "$hub found no \"$name\""; }
  done
  grep -qF "card picture \"$data/images/ORBE-HE75.png\"" "$log" ||
    { cat "$log"; fail "$hub did not show the keyboard's picture from $data/images"; }
  if grep -E "no picture|no images folder|card picture .*/default" "$log"; then
    fail "$hub fell back for a picture"
  fi
  step "$hub: $(grep -c 'card picture' "$log") cards with their pictures from $data"
}

# ---- 1. install into a temporary prefix
prefix="$work/prefix"
cmake --install "$build" --prefix "$prefix" >/dev/null
for file in bin/orbehub bin/orbehub-cli share/orbehub/config/OrbeHubDevices.json \
  share/orbehub/config/CustomDeviceList.json share/orbehub/config/enumsetting.ini \
  share/orbehub/images/ORBE-HE75.png share/orbehub/images/default0.png \
  lib/udev/rules.d/70-orbehub.rules share/applications/$app_id.desktop \
  share/metainfo/$app_id.metainfo.xml share/man/man1/orbehub-cli.1.gz; do
  [ -s "$prefix/$file" ] || fail "cmake --install left out $file"
done
for size in 16 22 24 32 48 64 128 256 512; do
  icon="$prefix/share/icons/hicolor/${size}x${size}/apps/$app_id.png"
  [ -s "$icon" ] || fail "no ${size}x${size} icon"
  file "$icon" | grep -q "$size x $size" || fail "$icon is not $size by $size"
done
step "installed into $prefix"

desktop-file-validate "$prefix/share/applications/$app_id.desktop" ||
  fail "desktop-file-validate refused the desktop entry"
grep -q "^Icon=$app_id$" "$prefix/share/applications/$app_id.desktop" || fail "the entry names another icon"
appstreamcli validate --no-net --explain "$prefix/share/metainfo/$app_id.metainfo.xml" ||
  fail "appstreamcli refused the metainfo"
grep -q "release version=\"[0-9]" "$prefix/share/metainfo/$app_id.metainfo.xml" ||
  fail "the metainfo's release has no version"
warnings=$(zcat "$prefix/share/man/man1/orbehub-cli.1.gz" | groff -man -ww -z -Tutf8 2>&1) ||
  fail "groff could not format the manual page"
[ -z "$warnings" ] || fail "the manual page: $warnings"
step "desktop entry, metainfo and manual page validate"

# ---- 2. the installed programs
before=$(listing "$prefix")
check_hub "$prefix/bin/orbehub" "$prefix/share/orbehub"
home="$work/cli-home"
HOME="$home" XDG_CONFIG_HOME="$home/config" "$prefix/bin/orbehub-cli" --simulate info >/dev/null ||
  fail "the installed orbehub-cli failed"
grep -q "^lastVID=3151$" "$home/config/orbehub/device.ini" ||
  fail "orbehub-cli did not keep device.ini in the user's config folder"
[ "$(listing "$prefix")" = "$before" ] || fail "the installed programs wrote into their prefix"
step "the installed programs wrote only to the user's folders"

# ---- 3. the package
if ! command -v dpkg-deb >/dev/null; then
  step "SKIPPED the package: no dpkg-deb here (not a Debian system)"
  exit 0
fi
rm -rf "$build/packages"
(cd "$build" && cpack -G DEB >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log"; fail "cpack -G DEB"; }
deb=$(ls "$build"/packages/orbehub_*.deb)
[ "$(dpkg-deb -f "$deb" Package)" = orbehub ] || fail "the package is not named orbehub"
depends=$(dpkg-deb -f "$deb" Depends)
for dependency in libqt6widgets6 libhidapi-hidraw0 libudev1 libpulse0 qt6-qpa-plugins; do
  [[ $depends == *"$dependency"* ]] || fail "the package does not depend on $dependency: $depends"
done
contents=$(dpkg-deb -c "$deb")
for file in ./usr/bin/orbehub ./usr/bin/orbehub-cli ./usr/share/orbehub/config/OrbeHubDevices.json \
  ./usr/lib/udev/rules.d/70-orbehub.rules ./usr/share/applications/$app_id.desktop; do
  grep -qF " $file" <<<"$contents" || fail "the package lacks $file"
done
dpkg-deb --ctrl-tarfile "$deb" | tar -xO ./postinst | grep -q "udevadm control --reload-rules" ||
  fail "the package does not reload udev's rules on install"
step "$(basename "$deb") built: Depends: $depends"

# ---- 4. install it
if [ "$(id -u)" -ne 0 ]; then
  step "SKIPPED dpkg -i: not root"
  exit 0
fi
if ! command -v dpkg >/dev/null; then
  step "SKIPPED dpkg -i: no dpkg here"
  exit 0
fi
# Several checkouts may run this at once on one machine: one package test at a time.
exec 9>/tmp/orbehub-check-install.lock
flock 9
if dpkg-query -W -f='${Status}' orbehub 2>/dev/null | grep -q "ok installed"; then
  step "SKIPPED dpkg -i: orbehub is installed on this machine already; left as it is"
  exit 0
fi
package_installed=1
dpkg -i "$deb" >"$work/dpkg.log" 2>&1 || { cat "$work/dpkg.log"; fail "dpkg -i"; }
installed_ok=0
(
  check_hub /usr/bin/orbehub /usr/share/orbehub
  [ -f /usr/lib/udev/rules.d/70-orbehub.rules ] || [ -f /lib/udev/rules.d/70-orbehub.rules ] ||
    fail "the package left out the udev rule"
) && installed_ok=1
dpkg --purge orbehub >"$work/dpkg.log" 2>&1 || { cat "$work/dpkg.log"; fail "dpkg --purge"; }
package_installed=0
[ $installed_ok = 1 ] || fail "the installed package did not work"
[ ! -e /usr/bin/orbehub ] && [ ! -e /usr/share/orbehub ] || fail "dpkg --purge left files behind"
if dpkg-query -W -f='${Status}' orbehub 2>/dev/null | grep -qE "installed|config-files"; then
  fail "dpkg still lists orbehub after the purge"
fi
step "dpkg -i, the hub from /usr, dpkg --purge: done"
