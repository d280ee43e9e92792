#include "cases/archivo_supuestos.h"
#include "ejemplos.h"
#include "pensions/muerte/muerte_registro.h"

namespace {

using namespace orvemo;
using muerte::kDiseno;
using muerte::RegistroMuerte;

/// The story of the manual.
RegistroMuerte andamio() {
    RegistroMuerte caso;
    caso.NombreSupuesto.asigna("Ejemplo 1: accidente de trabajo, viuda y dos huérfanos");
    caso.MuerteNombre.asigna("Ramón Vidal Sáez");
    caso.MuerteFechaMuerte = FechaDMA(9, 5, 2005);
    caso.MuerteFechaPension = caso.MuerteFechaMuerte;
    caso.MuerteCausa = 3;
    caso.MuerteDejaViuda = 1;
    caso.MuerteEdadViuda = 38;
    caso.MuerteHijos = 2;
    caso.MuerteUltimaBase = 17460;
    caso.reservado.asigna("");
    return caso;
}

RegistroMuerte pensionista() {
    RegistroMuerte caso;
    caso.NombreSupuesto.asigna("Ejemplo 2: pensionista de 1993, viuda con cargas y un hermano");
    caso.MuerteNombre.asigna("Eusebio Marín Cobo");
    caso.MuerteFechaMuerte = FechaDMA(17, 6, 2005);
    caso.MuerteFechaPension = FechaDMA(1, 10, 1993);
    caso.MuerteSituacion = 1;
    caso.MuerteDejaViuda = 1;
    caso.MuerteHayCargas = 1;
    caso.MuerteEdadViuda = 71;
    caso.MuerteVariosConyuges = 1;
    caso.MuerteFamiliares = 1;
    caso.MuerteUltimaBase = 742.38;
    caso.reservado.asigna("");
    return caso;
}

}  // namespace

void ejemplosMuerte(Almacen& directorio) {
    ArchivoSupuestos archivo{directorio, "muerte.nom", kDiseno.longitud()};
    archivo.agrega(kDiseno.escribe(andamio()));
    archivo.agrega(kDiseno.escribe(pensionista()));
}
