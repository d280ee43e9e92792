#include "payroll/finiquito/causas.h"

#include <iterator>

namespace orvemo::nomina {

namespace {

struct Causa {
    const char* texto;
    PropuestaCese propuesta;
};

// Days of severance, days of compensation and months of ceiling, by the workers' statute of 2005.
constexpr Causa kCausas[] = {
    {"1. Despido Improcedente", {45, 0, 42}},
    {"2. Despido Colectivo por causas económicas", {20, 0, 12}},
    {"3. Extinción de Contrato causas objetivas", {20, 0, 12}},
    {"4. Extinción voluntaria en situación de traslado autorizado", {20, 0, 12}},
    {"5. Cese voluntario por incumplimiento del empresario", {45, 0, 42}},
    {"6. Extinción por Muerte, Jubilación o Incapacidad del empresario", {30, 0, 1}},
    {"7. Terminación de contrato temporal de fomento de empleo", {0, 12, 3}},
    {"8. Extinción del contrato por dimisión del trabajador", {0, 0, 0}},
};

}  // namespace

std::vector<std::string> CausasCese() {
    std::vector<std::string> textos;
    for (const Causa& causa : kCausas) textos.emplace_back(causa.texto);
    return textos;
}

PropuestaCese PropuestaDeCese(int Indice) {
    const bool esta = Indice >= 0 && Indice < static_cast<int>(std::size(kCausas));
    return esta ? kCausas[Indice].propuesta : PropuestaCese{};
}

}  // namespace orvemo::nomina
