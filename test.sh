#!/usr/bin/env bash
# The whole test suite from a fresh Debian 12 machine: installs what is missing, builds the tree
# once with AddressSanitizer and UndefinedBehaviorSanitizer (in build-asan/, warnings as errors;
# the first finding stops the test that made it) and runs every test. ./run.sh keeps a plain
# build in build/.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-deps.sh test

jobs=$(nproc 2>/dev/null || echo 2)
[ "$jobs" -gt 8 ] && jobs=8

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DORBE_WERROR=ON -DORBE_SANITIZE=ON
cmake --build build-asan -j"$jobs"
# The Windows implementation of the platform layer, checked with the MinGW cross compiler.
tools/check-windows-syntax.sh
# The sanitizers' settings and the system libraries' suppressions (tools/sanitizers/) are in
# each test's environment.
ctest --test-dir build-asan --output-on-failure -j"$jobs"
# What a user installs: `cmake --install`, the desktop files, and the Debian package (built
# where dpkg-deb is, installed and removed again when run as root).
tools/check-install.sh build-asan
