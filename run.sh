#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it: ./run.sh [APPLICATION_DIRECTORY]
#
# The application directory holds the program beside its files. It is made if it isn't there and brought up to date
# if it is; the user's cases and config.nom in it stay as they are.
set -euo pipefail
destino=$(realpath -m "${1:-$(dirname "$0")/build/release/orvemo}")
cd "$(dirname "$0")"
. scripts/paquetes.sh

# The people of the cases that ship live in the year of the figures.
HOY_DE_LOS_EJEMPLOS=2005-07-01

# A case of capitalisation doesn't keep the kind of its beneficiaries: that of each example, record by record.
PAPELES_DE_CAPITAL=(0 0 2 3 4 10 11 7)

lote() {
    "$destino/orvemo-lote" "$@" --datos "$destino" --hoy "$HOY_DE_LOS_EJEMPLOS" </dev/null
}

calcula_capitales() {
    local i estado=0
    for i in "${!PAPELES_DE_CAPITAL[@]}"; do
        lote capital "$1" --registro $((i + 1)) --papel "${PAPELES_DE_CAPITAL[i]}" || estado=1
    done
    return $estado
}

# The conclusions of the cases that ship, calculator by calculator.
calcula_ejemplos() {
    local calculadora ejemplos estado=0
    while read -r calculadora _ ejemplos; do
        [ -n "$ejemplos" ] || continue
        printf '\n=== %s: %s\n\n' "$calculadora" "$ejemplos"
        case $calculadora in
            capital) calcula_capitales "$destino/$ejemplos" || estado=1 ;;
            irpf)
                lote irpf "$destino/$ejemplos" || estado=1
                printf '\n=== liquidos: %s\n\n' "$ejemplos"
                lote liquidos "$destino/$ejemplos" --neto 1000 --extra 2 --grupo 1 --contrato 0 || estado=1
                ;;
            *) lote "$calculadora" "$destino/$ejemplos" || estado=1 ;;
        esac
    done < <("$destino/orvemo-lote" --lista)
    return $estado
}

paquetes=("${PAQUETES_PROGRAMA[@]}")
# A pure Wayland session needs the toolkit's plug-in for it.
[ -n "${DISPLAY:-}" ] || [ -z "${WAYLAND_DISPLAY:-}" ] || paquetes+=(qt6-wayland)
instala_paquetes "${paquetes[@]}"

construye release
cmake --install build/release --strip --prefix "$destino" >/dev/null
avisa "Application directory: $destino"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$destino/PENSIONES_ORVEMO"
fi
avisa "There is no display to start PENSIONES_ORVEMO on: these are the conclusions of the cases that ship."
calcula_ejemplos
