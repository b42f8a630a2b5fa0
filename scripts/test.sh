#!/usr/bin/env bash
# Builds everything with AddressSanitizer and UndefinedBehaviorSanitizer and
# runs every test; each test case runs in a process of its own. Then builds
# the fuzz targets with clang and runs each for a short budget
# (scripts/fuzz.sh --ci).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake -S . -B build/test -G Ninja -DCMAKE_BUILD_TYPE=Debug -DKYDI_SANITIZE=ON
cmake --build build/test
ctest --test-dir build/test --output-on-failure -j "$(nproc)"
scripts/fuzz.sh --ci
