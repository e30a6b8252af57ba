#!/usr/bin/env bash
# Starts the program; with no display, computes an example with the command line instead.
set -euo pipefail
build="$1"
ejemplo="$2"
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No hay pantalla disponible: se calcula el ejemplo $ejemplo con kelvora-cli."
    if [ -f "$ejemplo" ]; then
        exec "$build/bin/kelvora-cli" calcular "$ejemplo"
    fi
    exec "$build/bin/kelvora-cli" --version
fi
exec "$build/bin/kelvora"
