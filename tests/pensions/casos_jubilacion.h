#pragma once

#include <string_view>

#include "foundations/values/formatos.h"
#include "pensions/comun/tablas_pensiones.h"
#include "pensions/jubilacion/jubilacion_carrera.h"

namespace orvemo::pruebas {

inline void ponPeriodo(jubilacion::RegistroJubilacion& caso, std::size_t fila, std::string_view desde,
                       std::string_view hasta) {
    caso.JubiPerDesde.at(fila - 1).asigna(desde);
    caso.JubiPerHasta.at(fila - 1).asigna(hasta);
}

inline void ponFechas(jubilacion::RegistroJubilacion& caso, std::string_view nacimiento,
                      std::string_view jubilacion) {
    caso.JubiFechaNac = LeeFecha(nacimiento);
    caso.JubiFechaJub = LeeFecha(jubilacion);
}

inline void ponRegimen(jubilacion::RegistroJubilacion& caso, jubilacion::Regimen regimen) {
    caso.JubiRegimen = static_cast<std::uint8_t>(static_cast<int>(regimen) - 1);
}

/// A person of the general scheme who is 65 on 15-06-2005, contributed from 1970 to the month before and
/// tells a sum of 210 months of 1000 euros.
[[nodiscard]] inline jubilacion::RegistroJubilacion casoTipo() {
    jubilacion::RegistroJubilacion caso;
    ponFechas(caso, "15-06-1940", "15-06-2005");
    ponPeriodo(caso, 1, "01-01-1970", "31-05-2005");
    caso.JubiSumaBases = 210000;
    return caso;
}

/// Tables in which prices stood still up to 2004.
[[nodiscard]] inline pensiones::TablasPensiones tablasPlanas(double indice) {
    pensiones::TablaIPC ipc;
    for (auto& anio : ipc) anio.fill(indice);
    return {ipc, pensiones::CargaBasesMinimas()};
}

}  // namespace orvemo::pruebas
