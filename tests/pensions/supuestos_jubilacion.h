#pragma once

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/dictamen.h"
#include "pensions/casos_jubilacion.h"
#include "pensions/jubilacion.h"

namespace orvemo::pruebas {

/// A story, what it changes in the usual case, and the whole of what is concluded.
struct SupuestoJubilacion {
    const char* historia;
    void (*prepara)(jubilacion::RegistroJubilacion&);
    bool derecho;
    std::string conclusion;
};

inline const Fecha kHoy = FechaDMA(15, 6, 2005);

[[nodiscard]] inline Dictamen dictamenDe(const jubilacion::RegistroJubilacion& caso) {
    Dictamen dictamen;
    jubilacion::CalculaJubilacion(caso, tablasPlanas(100), kHoy, dictamen);
    return dictamen;
}

inline void comprueba(const SupuestoJubilacion& supuesto) {
    SCOPED_TRACE(supuesto.historia);
    jubilacion::RegistroJubilacion caso = casoTipo();
    supuesto.prepara(caso);
    const Dictamen dictamen = dictamenDe(caso);
    EXPECT_EQ(dictamen.Conclusion(), supuesto.conclusion);
    EXPECT_EQ(dictamen.ConDerecho, supuesto.derecho);
}

// Sentences that many conclusions share.

inline const std::string kPeriodosExigidos =
    "El periodo mínimo de cotización exigido es de 15 años así como 2 años dentro\r\n"
    "de los 15 años anteriores a la solicitud.\r\n";
inline const std::string kCumplePeriodos =
    kPeriodosExigidos + "El interesado cumple los periodos mínimos de cotización exigidos.\r\n";

}  // namespace orvemo::pruebas
