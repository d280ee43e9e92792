#!/usr/bin/env bash
# What CI has no time for: clang-tidy over the whole of src, with each header alone, and then each fuzz target from its
# seeds: scripts/a_fondo.sh [SECONDS_EACH].
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/paquetes.sh
. scripts/paquetes.sh

instala_paquetes "${PAQUETES_PROGRAMA[@]}" "${PAQUETES_CLANG[@]}"
cmake --workflow --preset tidy
scripts/fuzz.sh "${1:-60}"
