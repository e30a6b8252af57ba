#!/usr/bin/env bash
# Fails when a C++ file of the project is not formatted with the project's .clang-format.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t archivos < <(git ls-files -co --exclude-standard -- src tests bench | grep -E '\.(cpp|h)$' || true)
[ ${#archivos[@]} -eq 0 ] && exit 0
clang-format --dry-run -Werror "${archivos[@]}"
