#!/usr/bin/env bash
# Writes a PNG of each window to docs/capturas/, under a virtual X server.
set -euo pipefail
build="$1"
mkdir -p docs/capturas
if [ -x "$build/bin/kelvora-capturas" ]; then
    xvfb-run -a -s "-screen 0 1280x900x24" "$build/bin/kelvora-capturas" docs/capturas
    # The first page of each printed document, as it comes out of its PDF.
    for pdf in docs/capturas/impreso-*.pdf; do
        [ -e "$pdf" ] || continue
        pdftoppm -png -r 80 -f 1 -l 1 -singlefile "$pdf" "${pdf%.pdf}"
        rm "$pdf"
    done
else
    echo "Aún no hay programa de capturas."
fi
