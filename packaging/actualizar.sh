#!/bin/sh
# actualizar.sh CARPETA
#
# Crea en CARPETA una copia del programa que hay junto a esta orden, o pone al día la que ya exista. Los supuestos
# guardados y config.nom se quedan como están.
#
# What may be replaced is what contenido.txt lists as "programa"; what it lists as "usuario" is only supplied where
# there is none; no other file is touched. All is copied first and then moved into place, so that a full disk leaves
# the old copy whole.
set -eu

[ $# -eq 1 ] || { echo "Uso: $0 CARPETA" >&2; exit 2; }
origen=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd -P)
mkdir -p -- "$1"
destino=$(CDPATH='' cd -- "$1" && pwd -P)
[ "$origen" != "$destino" ] || { echo "La carpeta de destino es la del propio programa." >&2; exit 2; }

# Two starts at once must not mix their copies.
exec 9<"$destino"
flock 9
! cmp -s "$origen/contenido.txt" "$destino/contenido.txt" || exit 0

nueva="$destino/.nueva"
rm -rf -- "$nueva"
trap 'rm -rf -- "$nueva"' EXIT
trap 'exit 1' HUP INT TERM

# The program takes names that differ in case for one file.
tiene_el_usuario() {
    [ -n "$(find "$destino" -maxdepth 1 -iname "$1" -print -quit)" ]
}

copia() {
    mkdir -p -- "$nueva/$(dirname -- "$1")"
    cp -- "$origen/$1" "$nueva/$1"
    chmod u+rw -- "$nueva/$1"
}

while read -r clase fichero; do
    case $clase in
        programa) copia "$fichero" ;;
        usuario) tiene_el_usuario "$fichero" || copia "$fichero" ;;
    esac
done <"$origen/contenido.txt"

while read -r clase fichero; do
    if [ -f "$nueva/$fichero" ]; then
        mkdir -p -- "$destino/$(dirname -- "$fichero")"
        mv -f -- "$nueva/$fichero" "$destino/$fichero"
    fi
done <"$origen/contenido.txt"

# Last, for it says that the copy is complete.
cp -- "$origen/contenido.txt" "$nueva/contenido.txt"
mv -f -- "$nueva/contenido.txt" "$destino/contenido.txt"
