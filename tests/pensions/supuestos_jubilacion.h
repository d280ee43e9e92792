#pragma once

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/dictamen.h"
#include "pensions/casos_jubilacion.h"
#include "pensions/jubilacion/jubilacion.h"

namespace orvemo::pruebas {

/// A story: what differs from the usual case, and the whole of what is concluded.
struct SupuestoJubilacion {
    const char* historia;
    const char* nacimiento = "15-06-1940";
    const char* desde = "01-01-1970";
    const char* hasta = "31-05-2005";
    jubilacion::Regimen regimen = jubilacion::Regimen::General;
    bool voluntario = false;
    bool conyuge = false;
    double sumaBases = 210000;
    double redJor = 0;
    const char* jubilacion = "15-06-2005";
    std::string conclusion;
};

inline const Fecha kHoy = FechaDMA(15, 6, 2005);

[[nodiscard]] inline Dictamen dictamenDe(const jubilacion::RegistroJubilacion& caso) {
    Dictamen dictamen;
    dictamen.linea("de antes");
    jubilacion::CalculaJubilacion(caso, tablasPlanas(100), kHoy, dictamen);
    return dictamen;
}

[[nodiscard]] inline jubilacion::RegistroJubilacion casoDe(const SupuestoJubilacion& s) {
    jubilacion::RegistroJubilacion caso;
    ponFechas(caso, s.nacimiento, s.jubilacion);
    ponPeriodo(caso, 1, s.desde, s.hasta);
    ponRegimen(caso, s.regimen);
    caso.JubiVoluntario = s.voluntario ? 1 : 0;
    caso.JubiConyuge = s.conyuge ? 1 : 0;
    caso.JubiSumaBases = s.sumaBases;
    caso.JubiRedJor = s.redJor;
    return caso;
}

// Sentences that many conclusions share.

[[nodiscard]] inline std::string desea(const char* edad) {
    return std::string{"El interesado desea jubilarse a los "} + edad + " años.\r\n";
}

[[nodiscard]] inline std::string cotizo(const char* enTotal, const char* enLosUltimos15) {
    return std::string{"Ha cotizado durante "} + enTotal +
           ".\r\nAdemás,  en los 15 últimos años ha cotizado " + enLosUltimos15 +
           ".\r\n"
           "El periodo mínimo de cotización exigido es de 15 años así como 2 años dentro\r\n"
           "de los 15 años anteriores a la solicitud.\r\n";
}

}  // namespace orvemo::pruebas
