#include "payroll/salario/prestaciones.h"

#include "foundations/values/numeros.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"

namespace orvemo::nomina {
namespace {

// The daily base of a leave counts the year's overtime by the days of a year.
constexpr double kDiasPorAnioMensual = 360;  // for those who are paid by the month
constexpr double kDiasPorAnioDiario = 365;   // for the rest

// Part of the daily base that each benefit pays, in force in 2005.
constexpr double kParteEnfermedad = 0.6;        // days 4 to 20 of a sick leave (RD 53/1980)
constexpr double kParteEnfermedadLarga = 0.75;  // from day 21 (Decreto 3158/1966)
constexpr double kParteAccidente = 0.75;        // from the day after the accident (Decreto 3158/1966)
constexpr double kParteDesempleo = 70;          // percent of the average base (LGSS, art. 211)

/// Those paid by the day count the days contributed before the leave.
double profesionalPorDias(const Entradas& e) {
    return Centimos(Divide(e.BaseATEPAnt - e.HEMesAnt, e.DiasAnt)) +
           Centimos(e.HEAnioAnt / kDiasPorAnioDiario);
}

BasesReguladoras reguladorasParcial(const Entradas& e) {
    return {Centimos(Cociente(e.BaseCCAnt, e.DiasAnt)), profesionalPorDias(e)};
}

BasesReguladoras reguladorasDiarias(const Entradas& e) {
    return {Centimos(Divide(e.BaseCCAnt, e.DiasAnt)), profesionalPorDias(e)};
}

BasesReguladoras reguladorasMensuales(const Entradas& e) {
    return {Centimos(e.BaseCCAnt / kDiasPorMes), Centimos((e.BaseATEPAnt - e.HEMesAnt) / kDiasPorMes) +
                                                     Centimos(e.HEAnioAnt / kDiasPorAnioMensual)};
}

/// Days of leave that are paid: those of the week worked, in a part-time contract.
struct DiasPagados {
    int de4a15, de16a20, desde21, accidente;
};

DiasPagados diasPagados(const EstadoNomina& Estado) {
    const Dias& d = Estado.dias;
    if (Estado.entradas.ContratoParcial) return {d.LabIT4a15, d.LabIT16a20, d.LabIT21, d.LabAT};
    return {d.DiasIT4a15, d.DiasIT16a20, d.DiasIT21, d.DiasAT};
}

}  // namespace

BasesReguladoras CalculaBasesReguladoras(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    if (Estado.dias.DiasBaja == 0) return {};
    if (e.ContratoParcial) return reguladorasParcial(e);
    return e.cobraPorMeses() ? reguladorasMensuales(e) : reguladorasDiarias(e);
}

/// The first three days of a sick leave are nobody's; the company pays from the 4th to the 15th.
Prestaciones CalculaPrestaciones(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    const auto [BRComun, BRProfesional] = Estado.reguladoras;
    const DiasPagados dias = diasPagados(Estado);
    Prestaciones p;
    if (e.hayDesempleoParcial())
        p.PrestDP = Centimos(e.Promedio6Meses * e.CoefDesempleo * kParteDesempleo / 100);
    p.ITEmpresa = Centimos(dias.de4a15 * BRComun * kParteEnfermedad);
    p.ITSeguridadSocial = Centimos(dias.de16a20 * BRComun * kParteEnfermedad) +
                          Centimos(dias.desde21 * BRComun * kParteEnfermedadLarga);
    p.PrestIT = p.ITEmpresa + p.ITSeguridadSocial;
    p.PrestAT = Centimos(BRProfesional * kParteAccidente) * dias.accidente;
    return p;
}

}  // namespace orvemo::nomina
