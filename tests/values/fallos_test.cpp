#include "foundations/values/fallos.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvemo {
namespace {

TEST(Fallos, TellTheUserWhatHappened) {
    const double infinito = std::numeric_limits<double>::infinity();
    const std::string largo(100, 'x');
    struct {
        Fallo fallo;
        std::string esperado;
    } const casos[] = {
        {DesbordeNumerico{21474836.48}, "el número 21474836,48 está fuera de los límites admitidos"},
        {DesbordeNumerico{1e300}, "un número está fuera de los límites admitidos"},
        {DesbordeNumerico{infinito}, "un número está fuera de los límites admitidos"},
        {DivisionPorCero{}, "se ha dividido por cero"},
        {TextoIlegible{"doce", "número"}, "el texto \"doce\" no se puede leer como número"},
        {TextoIlegible{std::string{"a\r\0\x1B\u0081", 6}, "fecha"},
         R"(el texto "a\r\u0000\u001b\u0081" no se puede leer como fecha)"},
        {TextoIlegible{largo, "fecha"},
         "el texto \"" + largo.substr(0, 40) + "…\" no se puede leer como fecha"},
        {FechaInexistente{31, 2, 2005}, "la fecha 31-02-2005 no existe"},
        {FicheroInaccesible{"desemp.nom", "el disco está lleno"},
         "el fichero \"desemp.nom\" no se puede usar (el disco está lleno)"},
        {FicheroMalFormado{"ipc.txt", 12, "falta el año"},
         "el fichero \"ipc.txt\" no es correcto en la línea 12 (falta el año)"},
        {FicheroMalFormado{"ipc.txt", 0, "está vacío"}, "el fichero \"ipc.txt\" no es correcto (está vacío)"},
    };
    for (const auto& caso : casos) EXPECT_EQ(caso.esperado, caso.fallo.what());
}

}  // namespace
}  // namespace orvemo
