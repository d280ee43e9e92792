#!/usr/bin/env bash
# Builds the fuzz targets and runs each from its seeds: scripts/fuzz.sh [SECONDS_EACH]. What one finds stays in
# build/fuzz as crash-*.
set -euo pipefail
cd "$(dirname "$0")/.."
segundos=${1:-60}

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
cd build/fuzz
for blanco in fuzz/fuzz_*; do
    [ -x "$blanco" ] || continue
    nombre=$(basename "$blanco")
    printf '\n=== %s\n' "$nombre"
    mkdir -p "semillas/$nombre" "hallazgos/$nombre"
    # Weighing what is rare and looking for leaks at every turn would cost more than the runs; leaks are told at the end.
    "$blanco" -max_total_time="$segundos" -len_control=0 -max_len=8192 -entropic=0 -detect_leaks=0 -print_final_stats=1 \
        "hallazgos/$nombre" "semillas/$nombre" 2>&1 | tail -n 12
done
