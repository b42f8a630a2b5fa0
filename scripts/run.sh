#!/usr/bin/env bash
# Builds the release tree and runs the kydi program: without arguments
# `kydi dump` on the bundled sample drawing, otherwise with the arguments
# given.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release -DKYDI_BUILD_TESTS=OFF
cmake --build build/release
if [ $# -eq 0 ]; then
    set -- dump
fi
exec build/release/apps/kydi/kydi "$@"
