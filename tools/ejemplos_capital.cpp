#include "capital/capitalizacion/beneficiarios.h"
#include "capital/capitalizacion/capitalizacion_registro.h"
#include "cases/archivo_supuestos.h"
#include "ejemplos.h"

namespace {

using namespace orvemo;
using namespace orvemo::capital;

/// A case on 15 June 2005. The kind of beneficiaries, which no record keeps, stands in its name.
RegistroCapital caso(const char* nombreSupuesto, const char* nombre, Causa causa, double base) {
    RegistroCapital caso;
    caso.NombreSupuesto.asigna(nombreSupuesto);
    caso.Nombre.asigna(nombre);
    caso.Situacion = static_cast<std::int16_t>(causa);
    caso.Capital = base;
    caso.fConce = caso.fCapi = FechaDMA(15, 6, 2005);
    caso.Edad = caso.EdadB = caso.Edad1 = caso.Edad2 = caso.Edad3 = caso.fConce;
    return caso;
}

RegistroCapital incapacidadTotal() {
    RegistroCapital c =
        caso("Ejemplo 1: incapacidad total, declarada un año después", "Ramiro Sanz Coll", kTotal, 1320.4);
    c.Edad = c.Edad2 = FechaDMA(2, 5, 1965);
    c.fCapi = FechaDMA(20, 6, 2006);
    return c;
}

RegistroCapital granInvalidez() {
    RegistroCapital c = caso("Ejemplo 2: gran invalidez, declarada ocho años después", "Eulalia Roig Marsé",
                             kGranInvalidez, 1100);
    c.Edad = c.Edad2 = FechaDMA(11, 1, 1957);
    c.fConce = FechaDMA(3, 6, 1997);
    return c;
}

RegistroCapital viuda() {
    RegistroCapital c = caso("Ejemplo 3: Viudo/a", "Dolores Vega Ruiz", kMuerte, 1500);
    c.Edad = FechaDMA(30, 4, 1943);
    return c;
}

RegistroCapital dosViudas() {
    RegistroCapital c = caso("Ejemplo 4: Dos Viudos/as", "Julián Prats Oliva", kMuerte, 1650);
    c.Edad = FechaDMA(9, 7, 1950);
    c.EdadB = FechaDMA(21, 11, 1961);
    c.Dias1 = 5840;
    c.Dias2 = 2920;
    return c;
}

/// The story of the manual.
RegistroCapital viudaConHija() {
    RegistroCapital c =
        caso("Ejemplo 5: Viudo/a y descendiente menor de 21 años", "Amparo Lillo Ferri", kMuerte, 1500);
    c.Edad = FechaDMA(12, 3, 1965);
    c.Edad1 = FechaDMA(8, 4, 1995);
    return c;
}

RegistroCapital tresHuerfanos() {
    RegistroCapital c = caso("Ejemplo 6: Tres o más descendientes menores de 23 años", "Hermanos Bravo Tena",
                             kMuerte, 980.75);
    c.Edad1 = FechaDMA(14, 2, 1997);
    c.Edad2 = FechaDMA(25, 8, 1992);
    c.Edad3 = FechaDMA(1, 12, 1994);
    return c;
}

RegistroCapital viudaConDosHijos() {
    RegistroCapital c =
        caso("Ejemplo 7: Viudo/a y 2 descendientes menores de 21 años", "Rosa Neira Pazos", kMuerte, 1234.56);
    c.Edad = FechaDMA(6, 10, 1966);
    c.Edad1 = FechaDMA(18, 5, 1997);
    c.Edad2 = FechaDMA(3, 6, 1993);
    return c;
}

RegistroCapital padres() {
    RegistroCapital c = caso("Ejemplo 8: Dos ascendientes", "Matías Ortega Leal", kMuerte, 1075);
    c.Edad1 = FechaDMA(28, 9, 1935);
    c.Edad2 = FechaDMA(17, 3, 1940);
    return c;
}

}  // namespace

void ejemplosCapital(Almacen& directorio) {
    ArchivoSupuestos archivo{directorio, "Capit.nom", kDiseno.longitud()};
    for (const RegistroCapital& c : {incapacidadTotal(), granInvalidez(), viuda(), dosViudas(),
                                     viudaConHija(), tresHuerfanos(), viudaConDosHijos(), padres()})
        archivo.agrega(kDiseno.escribe(c));
}
