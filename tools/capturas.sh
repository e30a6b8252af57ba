#!/usr/bin/env bash
# Writes a PNG of each window to docs/capturas/, under a virtual X server.
set -euo pipefail
build="$1"
mkdir -p docs/capturas
if [ -x "$build/bin/kelvora-capturas" ]; then
    xvfb-run -a -s "-screen 0 1280x900x24" "$build/bin/kelvora-capturas" docs/capturas
else
    echo "Aún no hay programa de capturas."
fi
