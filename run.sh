#!/usr/bin/env bash
# Builds the hub and starts it with the virtual keyboards. Without a display it runs the
# command-line tool against them instead.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-deps.sh run

jobs=$(nproc 2>/dev/null || echo 2)
[ "$jobs" -gt 8 ] && jobs=8

cmake -S . -B build -DCMAKE_BUILD_TYPE=Debug
cmake --build build -j"$jobs" --target orbehub orbehub-cli orbe_config

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  exec build/bin/orbehub --simulate "$@"
fi
echo "No display found: running build/bin/orbehub-cli --simulate info instead."
exec build/bin/orbehub-cli --simulate info
