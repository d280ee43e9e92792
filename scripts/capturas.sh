#!/usr/bin/env bash
# Takes the pictures of docs/imagenes again, at 100 and at 200 %: scripts/capturas.sh
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquetes.sh

instala_paquetes "${PAQUETES_PROGRAMA[@]}" poppler-utils
cmake --preset release -Wno-dev
cmake --build --preset release --target capturas datos

imagenes=$PWD/docs/imagenes
mkdir -p "$imagenes"
trabajo=$(mktemp -d)
trap 'rm -rf "$trabajo"' EXIT
export XDG_RUNTIME_DIR=$trabajo
chmod 700 "$trabajo"

for porcentaje in 100 200; do
    datos=$trabajo/$porcentaje
    cp -r build/release/data "$datos"
    sufijo=
    [ "$porcentaje" = 100 ] || sufijo=-$porcentaje
    QT_SCALE_FACTOR=$((porcentaje / 100)) build/release/tools/capturas "$datos" "$trabajo" "$sufijo"
    pdftoppm -r $((porcentaje * 6 / 10)) -png -singlefile "$trabajo/informe.pdf" "$trabajo/informe$sufijo"
    pdftoppm -r $((porcentaje * 7 / 10)) -gray -png -singlefile "$trabajo/recibo.pdf" "$trabajo/recibo$sufijo"
done
mv "$trabajo"/*.png "$imagenes"
avisa "The pictures are in docs/imagenes: look at them before they are committed."
