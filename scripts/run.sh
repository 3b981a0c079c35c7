#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
"$top/scripts/deps.sh"
cmake --preset release -S "$top" >/dev/null
cmake --build --preset release
bin="$top/build/release/app/velmora"
if [ $# -gt 0 ]; then exec "$bin" "$@"; fi
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "Ekran bulunamadı. Programı sanal ekranda başlatmak için:"
  echo "  xvfb-run -a -s '-screen 0 1280x800x24' $bin"
  exit 0
fi
exec "$bin"
