#include "tax/resultado_json.h"

#include <array>
#include <string_view>

#include "foundations/values/json.h"

namespace orvemo::irpf {

namespace {

using R = ResultadoRetencion;

template <typename T>
struct Valor {
    std::string_view nombre;
    T R::*miembro;
};

constexpr std::array kImportes{
    Valor<double>{"tipo", &R::TipoRetencion},
    Valor<double>{"importe", &R::ImporteRetencion},
    Valor<double>{"TipoRetencion", &R::TipoRetencion},
    Valor<double>{"ImporteRetencion", &R::ImporteRetencion},
    Valor<double>{"RendimientoNeto", &R::RendimientoNeto},
    Valor<double>{"ReduccionTrabajo", &R::ReduccionTrabajo},
    Valor<double>{"ReduccionesBase", &R::ReduccionesBase},
    Valor<double>{"BaseRetencion", &R::BaseRetencion},
    Valor<double>{"MayorDe65", &R::MayorDe65},
    Valor<double>{"MayorDe75", &R::MayorDe75},
    Valor<double>{"PorDiscapacidad", &R::PorDiscapacidad},
};
constexpr std::array kCuentas{
    Valor<int>{"NumDescendientes", &R::NumDescendientes},
    Valor<int>{"NumMenores3", &R::NumMenores3},
    Valor<int>{"NumDe3a25", &R::NumDe3a25},
    Valor<int>{"NumAdoptados", &R::NumAdoptados},
    Valor<int>{"NumEnteros", &R::NumEnteros},
    Valor<int>{"NumDescDisc33", &R::NumDescDisc33},
    Valor<int>{"NumDescDisc65", &R::NumDescDisc65},
    Valor<int>{"NumDescMovilidad", &R::NumDescMovilidad},
    Valor<int>{"NumAscendientes", &R::NumAscendientes},
    Valor<int>{"NumAscEnteros", &R::NumAscEnteros},
    Valor<int>{"NumAscDisc33", &R::NumAscDisc33},
    Valor<int>{"NumAscDisc65", &R::NumAscDisc65},
    Valor<int>{"NumAscMovilidad", &R::NumAscMovilidad},
};

}  // namespace

void AgregaResultado(std::string& json, const ResultadoRetencion& resultado) {
    for (const auto& valor : kImportes) AgregaCampoJson(json, valor.nombre, resultado.*valor.miembro);
    for (const auto& valor : kCuentas) AgregaCampoJson(json, valor.nombre, resultado.*valor.miembro);
    AgregaCampoJson(json, "Exento", resultado.Exento);
    AgregaCampoJson(json, "LimitaTipo", resultado.LimitaTipo);
}

}  // namespace orvemo::irpf
