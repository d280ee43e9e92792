#pragma once

#include <gtest/gtest.h>

#include <string>

#include "benefits/incapacidad_temporal.h"

namespace orvemo::incapacidad_temporal {

/// An employee who contributes by the month, 40 euros a day, ill for 20 days from Monday 6 June 2005.
inline RegistroIncapacidad casoTipo() {
    RegistroIncapacidad caso;
    caso.fAlta = FechaDMA(1, 2, 2000);
    caso.f1 = FechaDMA(6, 6, 2005);
    caso.f2 = FechaDMA(25, 6, 2005);
    caso.DM = 1;
    caso.Bccant = 1200;
    return caso;
}

struct Supuesto {
    const char* historia;
    void (*prepara)(RegistroIncapacidad&, EnPantalla&);
    std::string conclusion;
};

inline const std::string kInicio =
    "El interesado/a desea solicitar una prestación por Incapacidad Temporal.\r\n";
inline const std::string kCincoAnios =
    "El trabajador debe justificar un mínimo de 180 días de cotización,\r\ndentro de los últimos 5 años.\r\n";
inline const std::string kSinCotizacion = "El trabajador no debe justificar cotizaciones anteriores.\r\n";

inline void comprueba(const Supuesto& s) {
    SCOPED_TRACE(s.historia);
    RegistroIncapacidad caso = casoTipo();
    EnPantalla pantalla{.Sup2 = true, .DSem = "LMXJVSD"};
    s.prepara(caso, pantalla);
    Dictamen dictamen;
    dictamen.linea("what an earlier case left");
    CalculaIncapacidad(caso, pantalla, dictamen);
    EXPECT_EQ(dictamen.Conclusion(), s.conclusion);
    EXPECT_TRUE(dictamen.ConDerecho);
}

}  // namespace orvemo::incapacidad_temporal
