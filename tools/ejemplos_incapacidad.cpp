#include <array>

#include "cases/archivo_supuestos.h"
#include "ejemplos.h"
#include "pensions/incapacidad/incapacidad_base.h"

namespace {

using namespace orvemo;
using namespace incapacidad;

template <typename Entrada>
std::uint8_t enLista(Entrada entrada) {
    return static_cast<std::uint8_t>(static_cast<int>(entrada) - 1);
}

void ponPeriodo(RegistroIncapacidad& caso, std::size_t fila, const char* desde, const char* hasta,
                const char* empresa) {
    caso.InvaPerDesde.at(fila - 1).asigna(desde);
    caso.InvaPerHasta.at(fila - 1).asigna(hasta);
    caso.InvaPerEmpresa.at(fila - 1).asigna(empresa);
}

/// Monthly bases of a year, euros. In 2001 there was no work up to September.
struct BaseAnual {
    int anio;
    double base;
};
constexpr std::array kBases{BaseAnual{2005, 1240}, BaseAnual{2004, 1205.5}, BaseAnual{2003, 1170},
                            BaseAnual{2002, 1140}, BaseAnual{2000, 1020},   BaseAnual{1999, 990},
                            BaseAnual{1998, 965.4}};

/// The lines that the screen shows.
void ponBases(RegistroIncapacidad& caso) {
    const pensiones::MesesAnteriores meses{caso.InvaFechaInv};
    const int lineas = InvaMinimoBases(Expediente{caso});
    for (int i = 1; i <= lineas; ++i) {
        double& linea = caso.InvaBase.at(static_cast<std::size_t>(i - 1));
        for (const BaseAnual& b : kBases) {
            if (b.anio == meses.anio(i)) linea = b.base;
        }
        if (meses.anio(i) == 2001 && meses.mes(i) >= 10) linea = 1100;
    }
}

/// The story of the manual.
RegistroIncapacidad costurera() {
    RegistroIncapacidad caso;
    caso.NombreSupuesto.asigna("Ejemplo 1: total por enfermedad, base a base");
    caso.InvaNombre.asigna("Amparo Gil Roca");
    caso.InvaFechaNac = FechaDMA(12, 9, 1957);
    caso.InvaFechaInv = FechaDMA(20, 6, 2005);
    caso.InvaInvalidez = enLista(Grado::Total);
    caso.InvaCausa = enLista(Causa::EnfermedadComun);
    caso.InvaAltaSS = 1;
    ponPeriodo(caso, 1, "01-03-1976", "30-06-1984", "Confecciones Mar");
    ponPeriodo(caso, 2, "01-09-1992", "31-12-2000", "Tapicerías Vega");
    ponPeriodo(caso, 3, "01-10-2001", "31-05-2005", "Tapicerías Vega");
    caso.InvaBasesDesglosadas = 1;
    ponBases(caso);
    caso.reservado.asigna("");
    return caso;
}

RegistroIncapacidad accidente() {
    RegistroIncapacidad caso;
    caso.NombreSupuesto.asigna("Ejemplo 2: gran invalidez por una prensa sin resguardo");
    caso.InvaNombre.asigna("Julián Ortega Pons");
    caso.InvaFechaNac = FechaDMA(3, 2, 1968);
    caso.InvaFechaInv = FechaDMA(10, 5, 2005);
    caso.InvaInvalidez = enLista(Grado::GranInvalidez);
    caso.InvaCausa = enLista(Causa::Profesional);
    caso.InvaConyuge = 1;
    caso.InvaUltimaBase = 16830.6;
    caso.InvaRecargo = 1;
    caso.InvaAltaSS = 1;
    caso.InvaPersona = 1;
    caso.reservado.asigna("");
    return caso;
}

RegistroIncapacidad sinAlta() {
    RegistroIncapacidad caso;
    caso.NombreSupuesto.asigna("Ejemplo 3: absoluta sin estar de alta, denegada");
    caso.InvaNombre.asigna("Benito Salas Cano");
    caso.InvaFechaNac = FechaDMA(30, 11, 1950);
    caso.InvaFechaInv = FechaDMA(1, 6, 2005);
    caso.InvaInvalidez = enLista(Grado::Absoluta);
    caso.InvaCausa = enLista(Causa::EnfermedadComun);
    caso.InvaRegimen = enLista(Regimen::Autonomos);
    caso.InvaConyuge = 1;
    ponPeriodo(caso, 1, "01-01-1978", "31-03-1997", "Bar propio");
    caso.InvaSumaBases = 58200;
    caso.reservado.asigna("");
    return caso;
}

}  // namespace

void ejemplosIncapacidad(Almacen& directorio) {
    ArchivoSupuestos archivo{directorio, "invalid.nom", kDiseno.longitud()};
    archivo.agrega(kDiseno.escribe(costurera()));
    archivo.agrega(kDiseno.escribe(accidente()));
    archivo.agrega(kDiseno.escribe(sinAlta()));
}
