#include "payroll/bases/bases.h"

#include "foundations/values/numeros.h"
#include "payroll/bases/topes.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"
#include "payroll/grupos/grupos.h"

namespace orvemo::nomina {
namespace {

/// Flat monthly base of the training contracts, 2005.
constexpr double kBaseFormacion = 448.875;

bool esMesCompleto(const Dias& d) {
    return d.DiasTrabajados == d.DiasMes;
}

// The share of extra pays.

double prorrataDelMes(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    const Dias& d = Estado.dias;
    const bool parcialConBaja = e.ContratoParcial && d.laborablesDeBaja() > 0;
    if (parcialConBaja) return Estado.Prorrata;
    if (e.cobraPorMeses() && esMesCompleto(d) && d.DiasBaja == 0) return Estado.Prorrata;
    if (e.cobraPorMeses()) return Estado.Prorrata / kDiasPorMes * d.DiasTrabajados;
    return d.DiasTrabajados * Estado.Prorrata;
}

// The days worked, in three ways: part-time with leave, paid by the month, paid by the day.

/// The leave of a part-time contract sets the floor by its hours.
bool esParcialDeBaja(const EstadoNomina& Estado) {
    return Estado.entradas.ContratoParcial && Estado.dias.LabIT + Estado.dias.LabAT > 0;
}

Topes topesPorHorasCC(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    return {grupos::MinimasComunes(e.Grupo).horaria * e.HorasDiarias * Estado.dias.DiasTrabajados,
            grupos::kBaseMaxima};
}

Topes topesPorHorasAT(const EstadoNomina& Estado) {
    return {Estado.entradas.HorasDiarias * grupos::kMinimasProfesionales.horaria * Estado.dias.DiasTrabajados,
            grupos::kBaseMaxima};
}

double baseMensual(double base, const Topes& topes, const Dias& d) {
    return Topada(base, esMesCompleto(d) ? topes : DeUnosDias(topes, d.DiasTrabajados));
}

double baseDiaria(double acumulada, const Topes& topes, const EstadoNomina& Estado) {
    const int dias = Estado.dias.DiasTrabajados;
    return dias * Topada(Divide(acumulada, dias) + Estado.Prorrata, topes);
}

double baseCC(const EstadoNomina& Estado, const Bases& b) {
    const Entradas& e = Estado.entradas;
    if (esParcialDeBaja(Estado)) return Topada(b.BaseCCProrrata, topesPorHorasCC(Estado));
    if (e.cobraPorMeses()) return baseMensual(b.BaseCCProrrata, TopesMensualesCC(e), Estado.dias);
    return baseDiaria(b.AcumBaseCC, TopesDiariosCC(e), Estado);
}

double baseAT(const EstadoNomina& Estado, const Bases& b) {
    const Entradas& e = Estado.entradas;
    if (esParcialDeBaja(Estado)) return Topada(b.BaseATProrrata, topesPorHorasAT(Estado));
    if (e.cobraPorMeses()) return baseMensual(b.BaseATProrrata, TopesMensualesAT(e), Estado.dias);
    return baseDiaria(b.AcumBaseAT, TopesDiariosAT(e), Estado);
}

// The days of unpaid leave, at the least base.

double basePermiso(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    const double minimo = MinimoCC(e) / kDiasPorMes;
    return Estado.dias.DiasPermiso * (e.cobraPorMeses() ? Centimos(minimo) : minimo) * e.CoefPluriempleo;
}

double basePermisoAT(const EstadoNomina& Estado) {
    return Estado.dias.DiasPermiso * grupos::kMinimasProfesionales.diaria * Estado.entradas.CoefPluriempleo;
}

// The days of leave, at the daily base of the leave.

/// Days that bear a base, and those of them outside maternity.
struct DiasDeBaja {
    int todos, sinMaternidad;
};

DiasDeBaja laborablesDeBaja(const Dias& d) {
    return {d.laborablesDeBaja(), d.LabIT + d.LabAT};
}

/// A leave that ends the month fills it up to 30 days.
DiasDeBaja diasHastaTreinta(const Dias& d) {
    const int todos = kDiasPorMes - d.DiasTrabajados - d.DiasPermiso;
    return {todos, Mayor(todos - d.DiasMat, 0)};
}

DiasDeBaja diasDeBaja(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    const Dias& d = Estado.dias;
    if (e.ContratoParcial) return laborablesDeBaja(d);
    const bool llenaElMes = d.DiasTrabajados + d.DiasPermiso + d.DiasBaja == d.DiasMes;
    if (e.cobraPorMeses() && llenaElMes) return diasHastaTreinta(d);
    return {d.DiasBaja, d.DiasBaja - d.DiasMat};
}

double diariaDeBajaCC(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    const double BRComun = Estado.reguladoras.BRComun;
    if (e.ContratoParcial) return BRComun;
    return Sujeta(BRComun, e.cobraPorMeses() ? DeUnosDias(TopesMensualesCC(e), 1) : TopesDiariosCC(e));
}

double diariaDeBajaAT(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    const double BRProfesional = Estado.reguladoras.BRProfesional;
    if (e.ContratoParcial) return BRProfesional;
    return Sujeta(BRProfesional, e.cobraPorMeses() ? DeUnosDias(TopesMensualesAT(e), 1) : TopesDiariosAT(e));
}

void calculaBasesDeBaja(const EstadoNomina& Estado, Bases& b) {
    if (Estado.dias.DiasBaja == 0) return;
    const DiasDeBaja dias = diasDeBaja(Estado);
    const double comun = diariaDeBajaCC(Estado);
    const double profesional = Centimos(diariaDeBajaAT(Estado));
    b.BaseITExacta = dias.todos * comun;
    b.BaseIT = dias.todos * Centimos(comun);
    b.BaseITSinMat = dias.sinMaternidad * Centimos(comun);
    b.BaseITMat = b.BaseIT - b.BaseITSinMat;
    b.BaseATBaja = dias.todos * profesional;
    b.BaseATBajaSinMat = dias.sinMaternidad * profesional;
    b.BaseATBajaMat = b.BaseATBaja - b.BaseATBajaSinMat;
}

/// Partial unemployment takes its part of the base, which the average of six months stands for.
void calculaBasesDeParo(const Entradas& e, Bases& b) {
    const double trabajada = 1 - e.CoefDesempleo;
    b.BaseParo = Centimos((b.BasePermisoAT + b.BaseAT + b.BaseATBaja) * trabajada);
    b.BaseParoSinMat = Centimos((b.BasePermisoAT + b.BaseAT + b.BaseATBajaSinMat) * trabajada);
    b.BaseParcial = Centimos(e.Promedio6Meses * e.CoefDesempleo);
}

/// Each form has a box of its own for one and the same base.
void copiaEnLasCasillas(Bases& b) {
    b.BasePermisoCopia = b.BasePermiso;
    b.BaseParo2 = b.BaseParo3 = b.BaseParo4 = b.BaseParo;
    b.BaseParcial2 = b.BaseParcial3 = b.BaseParcial4 = b.BaseParcial;
}

Bases basesDeFormacion(const EstadoNomina& Estado) {
    Bases b;
    b.BaseCC = Estado.dias.DiasTrabajados * Centimos(kBaseFormacion / kDiasPorMes);
    b.BaseTotalCC = b.BaseParo = b.BaseAT = b.BaseCC;
    return b;
}

Bases basesGenerales(const EstadoNomina& Estado) {
    Bases b;
    b.AcumBaseCC = Estado.devengos.AcumBaseCC;
    b.AcumBaseAT = Estado.devengos.AcumBaseAT;
    b.BaseCCProrrata = b.AcumBaseCC + prorrataDelMes(Estado);
    b.BaseATProrrata = b.AcumBaseAT + prorrataDelMes(Estado);
    b.BaseCC = baseCC(Estado, b);
    b.BaseAT = baseAT(Estado, b);
    b.BasePermiso = basePermiso(Estado);
    b.BasePermisoAT = basePermisoAT(Estado);
    calculaBasesDeBaja(Estado, b);
    b.BaseTotalCC = b.BasePermiso + b.BaseCC + b.BaseIT;
    calculaBasesDeParo(Estado.entradas, b);
    return b;
}

}  // namespace

Bases CalculaBases(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    if (e.esPagaExtra()) return {};
    Bases b = e.tieneCuotasFijas() ? basesDeFormacion(Estado) : basesGenerales(Estado);
    copiaEnLasCasillas(b);
    return b;
}

}  // namespace orvemo::nomina
