#!/usr/bin/env bash
# Fails when the core includes Qt, the windows or the command line.
set -euo pipefail
cd "$(dirname "$0")/.."
if grep -rnE '#include *(<Q|"gui/|"cli/)' src/core; then
    echo "src/core must not include Qt, gui/ or cli/" >&2
    exit 1
fi
if grep -rnE '#include *"gui/' src/cli || grep -rnE '#include *"cli/' src/gui; then
    echo "gui and cli must not include each other" >&2
    exit 1
fi
