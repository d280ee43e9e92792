#include <array>

#include "cases/archivo_supuestos.h"
#include "ejemplos.h"
#include "pensions/jubilacion/jubilacion_base.h"

namespace {

using namespace orvemo;
using jubilacion::kDiseno;
using jubilacion::RegistroJubilacion;

void ponPeriodo(RegistroJubilacion& caso, std::size_t fila, const char* desde, const char* hasta,
                const char* empresa) {
    caso.JubiPerDesde.at(fila - 1).asigna(desde);
    caso.JubiPerHasta.at(fila - 1).asigna(hasta);
    caso.JubiPerEmpresa.at(fila - 1).asigna(empresa);
}

/// Monthly bases of a year, euros. 1994 has none.
struct BaseAnual {
    int anio;
    double base;
};
constexpr std::array kBases{
    BaseAnual{2005, 1580}, BaseAnual{2004, 1545.5}, BaseAnual{2003, 1510},    BaseAnual{2002, 1475},
    BaseAnual{2001, 1420}, BaseAnual{2000, 1380},   BaseAnual{1999, 1340.75}, BaseAnual{1998, 1310},
    BaseAnual{1997, 1280}, BaseAnual{1996, 1240},   BaseAnual{1995, 1195},    BaseAnual{1993, 1120},
    BaseAnual{1992, 1060}, BaseAnual{1991, 990},    BaseAnual{1990, 920},
};

void ponBases(RegistroJubilacion& caso) {
    const pensiones::MesesAnteriores meses{FechaReferencia(caso)};
    const int total = pensiones::SerieBasesDe(Anio(caso.JubiFechaJub)).MesesBases;
    for (int i = 1; i <= total; ++i) {
        for (const BaseAnual& b : kBases) {
            if (b.anio == meses.anio(i)) caso.JubiBase.at(static_cast<std::size_t>(i - 1)) = b.base;
        }
    }
}

/// The story of the manual.
RegistroJubilacion anticipada() {
    RegistroJubilacion caso;
    caso.NombreSupuesto.asigna("Ejemplo 1: a los 62, despedida, base a base");
    caso.JubiNombre.asigna("Rosario Peña Soler");
    caso.JubiFechaNac = FechaDMA(20, 4, 1943);
    caso.JubiFechaJub = FechaDMA(15, 6, 2005);
    caso.JubiNoImputable = 1;
    ponPeriodo(caso, 1, "01-10-1961", "31-08-1978", "Hilaturas Riera");
    ponPeriodo(caso, 2, "15-03-1984", "31-12-1993", "Almacenes Lar");
    ponPeriodo(caso, 3, "01-01-1995", "31-05-2005", "Almacenes Lar");
    caso.JubiBasesDesglosadas = 1;
    ponBases(caso);
    caso.marca.asigna("DP");
    return caso;
}

RegistroJubilacion autonomo() {
    RegistroJubilacion caso;
    caso.NombreSupuesto.asigna("Ejemplo 2: autónomo de 66, suma de bases");
    caso.JubiNombre.asigna("Anselmo Ruiz Tena");
    caso.JubiFechaNac = FechaDMA(2, 2, 1939);
    caso.JubiFechaJub = FechaDMA(1, 7, 2005);
    caso.JubiRegimen = 1;
    caso.JubiConyuge = 1;
    ponPeriodo(caso, 1, "01-07-1981", "30-06-2005", "Ferretería propia");
    caso.JubiSumaBases = 118800;
    caso.marca.asigna("DP");
    return caso;
}

}  // namespace

void ejemplosJubilacion(Almacen& directorio) {
    ArchivoSupuestos archivo{directorio, "jubila.nom", kDiseno.longitud()};
    archivo.agrega(kDiseno.escribe(anticipada()));
    archivo.agrega(kDiseno.escribe(autonomo()));
}
