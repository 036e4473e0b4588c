#!/usr/bin/env bash
# The whole test suite from a fresh Debian 12 machine: installs what is missing, builds with
# warnings as errors and runs every test.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-deps.sh test

jobs=$(nproc 2>/dev/null || echo 2)
[ "$jobs" -gt 8 ] && jobs=8

cmake -S . -B build -DCMAKE_BUILD_TYPE=Debug -DORBE_WERROR=ON
cmake --build build -j"$jobs"
# The Windows implementation of the platform layer, checked with the MinGW cross compiler.
tools/check-windows-syntax.sh
ctest --test-dir build --output-on-failure -j"$jobs"
# What a user installs: `cmake --install`, the desktop files, and the Debian package (built
# where dpkg-deb is, installed and removed again when run as root).
tools/check-install.sh build
