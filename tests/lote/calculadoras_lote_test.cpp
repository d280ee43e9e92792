#include "lote/calculadoras_lote.h"

#include <gtest/gtest.h>

#include "apoyo/entorno_falso.h"

namespace orvemo::lote {
namespace {

TEST(CalculadorasLote, EachNameOpensItsOwn) {
    struct {
        const char *nombre, *titulo;
    } const filas[] = {
        {"jubilacion", "PENSIONES DE JUBILACIÓN"},
        {"desempleo", "PRESTACIONES DE DESEMPLEO"},
        {"it", "INCAPACIDAD TEMPORAL"},
        {"maternidad", "PRESTACION POR MATERNIDAD"},
        {"riesgo", "RIESGO DURANTE EL EMBARAZO"},
        {"nocontributiva", "JUBILACIÓN E INVALIDEZ NO CONTRIBUTIVAS"},
        {"familiar", "PRESTACIONES FAMILIARES NO CONTRIBUTIVAS"},
    };
    pruebas::EntornoFalso mundo;
    for (const auto& fila : filas) {
        const Abridor abridor = abridorDe(fila.nombre);
        ASSERT_TRUE(abridor) << fila.nombre;
        EXPECT_EQ(abridor(mundo.entorno)->Titulo(), fila.titulo);
    }
    EXPECT_FALSE(abridorDe("maternida"));
    EXPECT_FALSE(abridorDe(""));
}

}  // namespace
}  // namespace orvemo::lote
