#!/usr/bin/env bash
# Installs what is missing, builds with the sanitizers and runs every test.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
"$top/scripts/deps.sh"
cmake --preset test -S "$top" >/dev/null
cmake --build --preset test
ctest --preset test
