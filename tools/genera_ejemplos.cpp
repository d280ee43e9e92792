// Writes, into the current directory, one of the files of example cases that come with the program.
//
// The cases are told here as their screens would fill them and reach the file through the program's own
// records and file discipline.

#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <string_view>

#include "benefits/desempleo/desempleo_registro.h"
#include "benefits/nocontributiva/nocontributiva_registro.h"
#include "cases/archivo_supuestos.h"
#include "ejemplos.h"
#include "foundations/values/almacen.h"
#include "foundations/values/fallos.h"

namespace {

using namespace orvemo;

void desempleo(Almacen& directorio) {
    using orvemo::desempleo::kDiseno;
    using orvemo::desempleo::RegistroDesempleo;
    ArchivoSupuestos archivo{directorio, "desemp.nom", kDiseno.longitud()};

    RegistroDesempleo caso;
    caso.NombreSupuesto.asigna("Ejemplo 1: dos años cotizados, un hijo");
    caso.Nombre.asigna("Elena Prado Ribas");
    caso.Edad = 38;
    caso.Fecha_ = FechaDMA(13, 6, 2005);
    caso.fIni = FechaDMA(6, 6, 2005);
    caso.Suma = 7650;
    caso.Dias = 730;
    caso.Hijos = 1;
    archivo.agrega(kDiseno.escribe(caso));

    caso.NombreSupuesto.asigna("Ejemplo 2: media jornada, solicitud tardía");
    caso.Nombre.asigna("Tomás Olmo Vega");
    caso.Edad = 29;
    caso.Fecha_ = FechaDMA(27, 6, 2005);
    caso.Suma = 2340.5;
    caso.Dias = 410;
    caso.Hijos = 0;
    caso.Parcial = 1;
    caso.Horas = 20;
    archivo.agrega(kDiseno.escribe(caso));
}

void noContributiva(Almacen& directorio) {
    using orvemo::nocontributiva::kDiseno;
    using orvemo::nocontributiva::RegistroNoContributiva;
    ArchivoSupuestos archivo{directorio, "nocont.nom", kDiseno.longitud()};

    RegistroNoContributiva caso;
    caso.NombreSupuesto.asigna("Ejemplo: matrimonio mayor con un hijo que trabaja");
    caso.Nombre.asigna("Carmen Soto Lara");
    caso.FechaNac = FechaDMA(2, 3, 1936);
    caso.Estancia = 53;
    caso.NumMiembros = 3;
    caso.NumBenef = 2;
    caso.Renta = 600;
    caso.RenBene = 900;
    caso.RGlobal = 18900;
    caso.Convive = 1;
    archivo.agrega(kDiseno.escribe(caso));
}

struct Ejemplos {
    std::string_view fichero;
    void (*escribe)(Almacen&);
};
constexpr std::array kEjemplos{
    Ejemplos{"jubila.nom", ejemplosJubilacion},       Ejemplos{"desemp.nom", desempleo},
    Ejemplos{"ILT.nom", ejemplosIncapacidadTemporal}, Ejemplos{"Mater.nom", ejemplosMaternidad},
    Ejemplos{"invalid.nom", ejemplosIncapacidad},     Ejemplos{"muerte.nom", ejemplosMuerte},
    Ejemplos{"RiesgoEm.nom", ejemplosRiesgoEmbarazo}, Ejemplos{"nocont.nom", noContributiva},
    Ejemplos{"nominas.nom", ejemplosNominas},         Ejemplos{"Capit.nom", ejemplosCapital},
    Ejemplos{"RIRPF.nom", ejemplosIrpf},
};

}  // namespace

int main(int argc, char** argv) {
    const std::string_view pedido = argc == 2 ? argv[1] : "";
    const auto ejemplos = std::ranges::find(kEjemplos, pedido, &Ejemplos::fichero);
    if (ejemplos == kEjemplos.end()) {
        std::cerr << "usage: genera_ejemplos CASE-FILE\n";
        return 2;
    }
    try {
        DirectorioAplicacion directorio{std::filesystem::current_path()};
        ejemplos->escribe(directorio);
        return 0;
    } catch (const Fallo& fallo) {
        std::cerr << fallo.what() << '\n';
        return 1;
    }
}
