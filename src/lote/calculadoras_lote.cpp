#include "lote/calculadoras_lote.h"

#include <algorithm>
#include <array>

#include "benefits/desempleo/desemp_frm.h"
#include "benefits/familiar/familiar_frm.h"
#include "benefits/it/ilt_frm.h"
#include "benefits/maternidad/mater_frm.h"
#include "benefits/nocontributiva/nocon_frm.h"
#include "benefits/riesgo/riesgo_embarazo_frm.h"
#include "pensions/jubilacion/pension_frm.h"

namespace orvemo::lote {

namespace {

template <typename Pantalla>
std::unique_ptr<Calculadora> abre(Entorno& entorno) {
    return std::make_unique<Pantalla>(entorno);
}

struct Entrada {
    std::string_view nombre;
    std::unique_ptr<Calculadora> (*abre)(Entorno&);
};
constexpr std::array kEntradas{
    Entrada{"jubilacion", abre<PensionFrm>},
    Entrada{"desempleo", abre<DesempFrm>},
    Entrada{"it", abre<ILTFrm>},
    Entrada{"maternidad", abre<MaterFrm>},
    Entrada{"riesgo", abre<RiesgoEmbarazo>},
    Entrada{"nocontributiva", abre<NoConFrm>},
    Entrada{"familiar", abre<FamiliarFrm>},
};

}  // namespace

Abridor abridorDe(std::string_view nombre) {
    const auto entrada =
        std::ranges::find_if(kEntradas, [&](const Entrada& e) { return e.nombre == nombre; });
    return entrada == kEntradas.end() ? Abridor{} : Abridor{entrada->abre};
}

std::string nombresDisponibles() {
    std::string nombres;
    for (const Entrada& entrada : kEntradas) {
        nombres.append(nombres.empty() ? "" : ", ").append(entrada.nombre);
    }
    return nombres;
}

}  // namespace orvemo::lote
