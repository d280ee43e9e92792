#!/usr/bin/env bash
# Whatever is installed, started or brought up to date, what the user has written stays: prueba_copias.sh BUILD_FOLDER
set -euo pipefail

construccion=$1
taller=$(mktemp -d)
trap 'rm -rf "$taller"' EXIT
fallos=0

caso() { printf -- '- %s\n' "$1"; }
espera() {  # espera WHAT COMMAND...
    "${@:2}" || { printf '  FAILED: %s\n' "$1"; fallos=1; }
}
dice() { [ "$(cat "$1")" = "$2" ]; }
no_hay() { [ ! -e "$1" ]; }
instala() { cmake --install "$construccion" "$@" >/dev/null; }

# Files that a user has made his own in an application directory; one of them in capitals, as old disks have them.
usa() {
    echo "mi menú" >"$1/config.nom"
    rm -f "$1/nocont.nom"
    echo "mi caso" >"$1/NOCONT.NOM"
    echo "mis casos" >"$1/desemp.nom"
}
comprueba_lo_del_usuario() {
    espera "config.nom stays" dice "$1/config.nom" "mi menú"
    espera "NOCONT.NOM stays" dice "$1/NOCONT.NOM" "mi caso"
    espera "no nocont.nom puts NOCONT.NOM in the shade" no_hay "$1/nocont.nom"
    espera "desemp.nom stays" dice "$1/desemp.nom" "mis casos"
}

caso "a rebuild is installed over a folder in use"
app=$taller/app
instala --prefix "$app"
espera "config.nom is supplied" test -s "$app/config.nom"
usa "$app"
echo viejo >"$app/portada.bmp"
instala --prefix "$app"
comprueba_lo_del_usuario "$app"
espera "the data are renewed" cmp -s "$construccion/data/portada.bmp" "$app/portada.bmp"

caso "the system's launcher starts from a copy of the user's own"
paquete=$taller/usr/lib/pensiones-orvemo
instala --component aplicacion --prefix "$paquete"
instala --component escritorio --prefix "$taller/usr"
printf '#!/bin/sh\necho "1 $0"\n' >"$paquete/PENSIONES_ORVEMO"
chmod -R a-w "$paquete"
lanza() { env HOME="$taller/casa" XDG_DATA_HOME= "$taller/usr/bin/pensiones-orvemo"; }
copia=$taller/casa/.local/share/pensiones-orvemo
espera "the first start makes the copy" test "$(lanza)" = "1 $copia/PENSIONES_ORVEMO"
espera "config.nom is supplied" cmp -s "$paquete/config.nom" "$copia/config.nom"
usa "$copia"
espera "the second start finds it" test "$(lanza)" = "1 $copia/PENSIONES_ORVEMO"
comprueba_lo_del_usuario "$copia"

caso "an upgrade of the package reaches the copy at the next start"
chmod -R u+w "$paquete"
printf '#!/bin/sh\necho "2 $0"\n' >"$paquete/PENSIONES_ORVEMO"
echo "portada nueva" >"$paquete/portada.bmp"
echo "menú nuevo" >"$paquete/config.nom"
sed -i 's/^huella .*/huella 2/' "$paquete/contenido.txt"
espera "the new program starts" test "$(lanza)" = "2 $copia/PENSIONES_ORVEMO"
comprueba_lo_del_usuario "$copia"
espera "the data are renewed" dice "$copia/portada.bmp" "portada nueva"

caso "an upgrade that cannot be copied leaves the old copy whole"
printf '#!/bin/sh\necho "3 $0"\n' >"$paquete/PENSIONES_ORVEMO"
mv "$paquete/portada.bmp" "$paquete/aparte"
sed -i 's/^huella .*/huella 3/' "$paquete/contenido.txt"
espera "the old program starts" test "$(lanza 2>/dev/null)" = "2 $copia/PENSIONES_ORVEMO"
comprueba_lo_del_usuario "$copia"
espera "nothing half copied remains" no_hay "$copia/.nueva"
mv "$paquete/aparte" "$paquete/portada.bmp"
espera "the next start makes it good" test "$(lanza)" = "3 $copia/PENSIONES_ORVEMO"

caso "cases made in the newly unpacked folder don't reach the folder that it renews"
echo "de otro" >"$paquete/desemp.nom"
sed -i 's/^huella .*/huella 4/' "$paquete/contenido.txt"
"$paquete/actualizar.sh" "$copia"
comprueba_lo_del_usuario "$copia"

exit $fallos
