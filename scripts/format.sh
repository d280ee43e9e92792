#!/usr/bin/env bash
# Formats the sources with clang-format 14, or, with "check", says which aren't: scripts/format.sh [check]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquetes.sh

command -v clang-format-14 >/dev/null || instala_paquetes clang-format-14
mapfile -t fuentes < <(git ls-files '*.cpp' '*.h')
if [ "${1:-}" = check ]; then
    exec clang-format-14 --dry-run -Werror "${fuentes[@]}"
fi
clang-format-14 -i "${fuentes[@]}"
