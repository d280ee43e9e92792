#!/usr/bin/env bash
# Installs what is missing, builds the program and its tests, and runs them all: ./test.sh [CTEST_ARGUMENT...]
set -euo pipefail
cd "$(dirname "$0")"
. scripts/paquetes.sh

instala_paquetes "${PAQUETES_PROGRAMA[@]}" "${PAQUETES_PRUEBAS[@]}"
genera_locales es_ES.UTF-8 en_US.UTF-8

construye dev
exec ctest --preset dev --parallel "$(nproc)" "$@"
