#!/usr/bin/env bash
# Checks that the Windows platform layer compiles, on any machine, with the MinGW-w64 cross
# compiler (Debian: g++-mingw-w64-x86-64-posix). Win32Calls.cpp needs no Qt; the Qt-facing files
# are checked against this machine's Qt headers, which stand in for the Windows ones.
# Exits non-zero when a file fails or the compiler is missing.
set -u

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

cxx=""
for candidate in x86_64-w64-mingw32-g++-posix x86_64-w64-mingw32-g++; do
  if command -v "$candidate" >/dev/null 2>&1; then
    cxx=$candidate
    break
  fi
done
if [ -z "$cxx" ]; then
  echo "check-windows-syntax: no x86_64-w64-mingw32-g++ (apt-get install g++-mingw-w64-x86-64-posix)" >&2
  exit 2
fi

qt_include=$(pkg-config --variable=includedir Qt6Core 2>/dev/null || true)
if [ -z "$qt_include" ] || [ ! -d "$qt_include/QtCore" ]; then
  qt_include=/usr/include/x86_64-linux-gnu/qt6
fi

flags=(-std=c++20 -fsyntax-only -Wall -Wextra -Werror)
qt_flags=(-isystem "$qt_include" -isystem "$qt_include/QtCore" -DQT_CORE_LIB)

status=0
# check DIR FILE [FLAGS...]: one file under src/DIR.
check() {
  local dir=$1 file=$2
  shift 2
  if "$cxx" "${flags[@]}" "$@" -I"$here/src/$dir" "$here/src/$dir/$file"; then
    echo "check-windows-syntax: ok      src/$dir/$file"
  else
    echo "check-windows-syntax: FAILED  src/$dir/$file" >&2
    status=1
  fi
}

echo "check-windows-syntax: $cxx ${flags[*]}"
check platform Win32Calls.cpp
echo "check-windows-syntax: with the Qt headers of $qt_include"
check platform WindowsPlatform.cpp "${qt_flags[@]}"
check platform Platform.cpp "${qt_flags[@]}"
check platform PlatformLog.cpp "${qt_flags[@]}"
# The hot-plug message filter and the per-user store of the hub.
check device USBNotifier.cpp "${qt_flags[@]}" -I"$here/src/device" -I"$here/src/platform"
check hub UserSettings.cpp "${qt_flags[@]}" -I"$here/src/device" -I"$here/src/platform"
# The loopback capture as a Windows build without miniaudio.h makes it: silence.
check audio LoopbackCapture.cpp "${qt_flags[@]}" -I"$here/src/device"
check audio SilentLoopbackCapture.cpp "${qt_flags[@]}" -I"$here/src/device"
# Windows hands a key event's scan code over in its own form; the macro page and the key test
# read it here.
check keys KeyEventCodes.cpp "${qt_flags[@]}" -isystem "$qt_include/QtGui" -DQT_GUI_LIB \
  -I"$here/src/keycore"
exit $status
