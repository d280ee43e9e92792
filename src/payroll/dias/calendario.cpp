#include "payroll/dias/calendario.h"

#include <array>
#include <cstddef>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo::nomina {
namespace {

/// Month 0 is the December before and month 13 the January after.
constexpr std::array kDiasDelMes{31, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31, 31};
/// What any other number is given, February's.
constexpr int kDiasDeFebrero = 29;

/// From Sunday to Saturday.
constexpr std::string_view kLetras = "DLMWJVS";

}  // namespace

int DiasDelMes(int Mes) {
    if (!EntreLimites(Mes, 0, int{kDiasDelMes.size()} - 1)) return kDiasDeFebrero;
    return kDiasDelMes.at(static_cast<std::size_t>(Mes));
}

char LetraDia(Fecha fecha) {
    return kLetras.at(std::chrono::weekday{fecha}.c_encoding());
}

bool EsLaborable(Fecha fecha, std::string_view DiasSemana) {
    return DiasSemana.find(LetraDia(fecha)) != std::string_view::npos;
}

int DiasLaborablesAnio(std::string_view DiasSemana) {
    int laborables = 0;
    for (Fecha dia = FechaDMA(1, 1, kAnioNomina); Anio(dia) == kAnioNomina; dia += std::chrono::days{1})
        if (EsLaborable(dia, DiasSemana)) ++laborables;
    return laborables;
}

std::optional<Fecha> FechaDeCese(const Entradas& entradas) {
    if (EsVacio(entradas.FechaCese)) return std::nullopt;
    return LeeFecha(entradas.FechaCese);
}

}  // namespace orvemo::nomina
