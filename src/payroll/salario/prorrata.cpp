#include "payroll/salario/prorrata.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"
#include "payroll/caso/nomina_registro.h"
#include "payroll/dias/calendario.h"

namespace orvemo::nomina {
namespace {

constexpr double kMesesPorAnio = 12;
constexpr double kDiasPorAnio = 365;

/// Advances and overtime are no part of the monthly salary. What is looked for is a piece of this text.
constexpr std::string_view kFueraDelSalario = "AN/HE/HN/HF";

double pagasDelAnio(const RegistroNomina& r) {
    return r.NumPagas[1] * r.PagaExtra[1] + r.NumPagas[0] * r.PagaExtra[0];
}

bool sinProrrata(const Entradas& e) {
    return e.esPagaExtra() || e.esFormacion();
}

double salarioMensualDe(const std::string& Unidad, double Importe) {
    if (Unidad == "M") return Importe;
    if (Unidad == "D" || Unidad == "X") return Importe * kDiasPorMes;
    return 0;
}

}  // namespace

double CalculaProrrata(const EstadoNomina& Estado, const RegistroNomina& Registro) {
    const Entradas& e = Estado.entradas;
    const Dias& d = Estado.dias;
    if (sinProrrata(e)) return 0;
    const double anual = pagasDelAnio(Registro);
    if (d.DiasMat > 0 && e.ContratoParcial) return d.DiasTrabajados * Centimos(Cociente(anual, e.Dias12));
    if (e.ContratoParcial && !EsVacio(e.DiasSemana))
        return Centimos(Divide(anual, DiasLaborablesAnio(e.DiasSemana))) * d.DiasTrabajados;
    return Centimos(anual / (e.cobraPorMeses() ? kMesesPorAnio : kDiasPorAnio));
}

double CalculaSalarioMensual(const EstadoNomina& Estado, const RegistroNomina& Registro) {
    double salario = 0;
    if (Estado.entradas.TipoPaga != 0) return salario;
    for (std::size_t i = 0; i < kConceptos; ++i) {
        const double Importe = Registro.ImporteConcepto.at(i);
        const bool excluido =
            kFueraDelSalario.find(Registro.CodigoConcepto.at(i).utf8()) != std::string_view::npos;
        if (Importe > 0 && !excluido)
            salario = Finito(salario + salarioMensualDe(Registro.UnidadConcepto.at(i).utf8(), Importe));
    }
    return salario;
}

}  // namespace orvemo::nomina
