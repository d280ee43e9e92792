#include "payroll/finiquito/finiquito.h"

#include <cstddef>
#include <string>

#include "foundations/values/fechas.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"
#include "payroll/caso/nomina_registro.h"
#include "payroll/salario/proporcion.h"

namespace orvemo::nomina {
namespace {

constexpr double kMesesPorAnio = 12;

/// The contract as it ends.
struct Contrato {
    const Entradas& entradas;
    Fecha cese;
};

/// A period that ended in an earlier month of the year was settled then.
bool yaLiquidado(Fecha hasta, const Entradas& e) {
    return Anio(hasta) == kAnioNomina && Mes(hasta) < e.Mes;
}

/// By their numbers in the year alone.
double proporcionEnMeses(Fecha desde, Fecha hasta, Fecha Desde, Fecha Hasta) {
    return Divide(Mes(hasta) - Mes(desde) + 1, Mes(Hasta) - Mes(Desde) + 1);
}

double proporcionEnDias(Fecha desde, Fecha hasta, Fecha Desde, Fecha Hasta) {
    return Divide(DiasIncluidos(desde, hasta), DiasIncluidos(Desde, Hasta));
}

double parteDePeriodo(Fecha Desde, Fecha Hasta, double Importe, const Contrato& c) {
    const Entradas& e = c.entradas;
    if (Desde > c.cese || Desde == Hasta || yaLiquidado(Hasta, e)) return 0;
    const Fecha desde = Mayor(Desde, e.FechaInicio);
    const Fecha hasta = c.cese > Hasta ? Hasta : c.cese;
    const double enDias = proporcionEnDias(desde, hasta, Desde, Hasta);
    if (!e.cobraPorMeses()) return Centimos(Importe * kDiasPorMes * enDias);
    const bool mesesEnteros = EsPrimeroDeMes(desde) && EsUltimoDeMes(hasta) && EsUltimoDeMes(c.cese);
    return Centimos(Importe * (mesesEnteros ? proporcionEnMeses(desde, hasta, Desde, Hasta) : enDias));
}

/// A row without dates or without amount is nothing.
double ParteProporcional(const std::string& Desde, const std::string& Hasta, double Importe,
                         const Contrato& c) {
    if (!EsFecha(Desde) || !EsFecha(Hasta) || Importe == 0) return 0;
    return parteDePeriodo(FechaDe(Desde), FechaDe(Hasta), Importe, c);
}

/// Negative when more holidays were taken than earned.
double CalculaVacaciones(const RegistroNomina& r, const Contrato& c) {
    const double ganadas = ParteProporcional(r.FVac1.utf8(), r.FVac2.utf8(), r.ImpVac, c);
    if (r.DiasVac == 0) return ganadas;
    const double disfrutadas = static_cast<double>(r.DiasVac) * r.ImpVac;
    return ganadas - Centimos(c.entradas.cobraPorMeses() ? disfrutadas / kDiasPorMes : disfrutadas);
}

double CalculaExtraFin(const RegistroNomina& r, const Contrato& c, std::size_t i) {
    return ParteProporcional(r.FFec1.at(i).utf8(), r.FFec2.at(i).utf8(), r.FImporte.at(i), c);
}

/// Years of the contract, by the months that its days touch.
double aniosDeContrato(const Contrato& c) {
    const Fecha siguiente = SumaFecha(Intervalo::Dia, 1, c.cese);
    return DiferenciaFechas(Intervalo::Mes, c.entradas.FechaInicio, siguiente) / kMesesPorAnio;
}

/// What a year of contract is measured by, euros: a day of pay, and the most that the law gives, 0 for no
/// ceiling.
struct Medida {
    double diario;
    double tope;
};

Medida medidaMensual(double Salario, double Prorrata, int MaxInd) {
    return {Centimos(Salario / kDiasPorMes) + Centimos(Prorrata / kDiasPorMes),
            static_cast<double>(RedondeaPar((Salario + Prorrata) * MaxInd))};
}

/// The share of extra pays of these groups is that of a day.
Medida medidaDiaria(double Salario, double Prorrata, int MaxInd) {
    return {Centimos(Salario / kDiasPorMes) + Prorrata,
            static_cast<double>(RedondeaPar((Prorrata * kDiasPorMes + Salario) * MaxInd))};
}

/// Whole euros for so many days a year.
double indemnizacion(int dias, double anios, const Medida& medida) {
    const double euros = RedondeaPar(dias * anios * medida.diario);
    return euros > medida.tope && medida.tope > 0 ? medida.tope : euros;
}

void CalculaIndemnizacion(const EstadoNomina& Estado, const RegistroNomina& r, const Contrato& c,
                          Finiquito& f) {
    const auto medidaDe = c.entradas.cobraPorMeses() ? medidaMensual : medidaDiaria;
    const Medida medida = medidaDe(Estado.SalarioMensual, Estado.Prorrata, r.MaxInd);
    const double anios = aniosDeContrato(c);
    f.IndExtincion = indemnizacion(r.DiasInd, anios, medida);
    f.IndCompensacion = indemnizacion(r.DiasCom, anios, medida);
}

/// A month of pay, whole euros.
double CalculaPreaviso(const EstadoNomina& Estado) {
    return RedondeaPar(Estado.SalarioMensual);
}

}  // namespace

Finiquito CalculaFiniquito(const EstadoNomina& Estado, const RegistroNomina& Registro) {
    Finiquito f;
    const Entradas& e = Estado.entradas;
    if (!EsFecha(e.FechaCese)) return f;
    const Contrato contrato{e, FechaDe(e.FechaCese)};
    f.PPVacaciones = CalculaVacaciones(Registro, contrato);
    for (std::size_t i = 0; i < f.ExtraFin.size(); ++i)
        f.ExtraFin.at(i) = CalculaExtraFin(Registro, contrato, i);
    if (Registro.FExtincion != 0) CalculaIndemnizacion(Estado, Registro, contrato, f);
    if (Registro.FPreaviso != 0) f.IndPreaviso = CalculaPreaviso(Estado);
    return f;
}

}  // namespace orvemo::nomina
