#include "payroll/contratos/incentivos.h"

#include "foundations/values/fechas.h"
#include "foundations/values/numeros.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"

namespace orvemo::nomina {
namespace {

// Workers of age, on the first contract of the list (RDL 16/2001; Ley 35/2002).
constexpr int kEdadSenior60 = 60;
constexpr int kEdadSenior65 = 65;
constexpr double kDiasSenior60 = 1826.25;   // 5 years of contract
constexpr double kDiasSenior65 = 12783.75;  // 35 years
constexpr int kContratoSenior = 1;
constexpr double kReduccionSenior65 = 26.6;   // percent of the base
constexpr double kCuotaBonificable = 0.2218;  // of the base
constexpr int kPctSenior60 = 50;              // percent of it at 60
constexpr int kPctPorAnio = 10;               // more a year
constexpr int kPctMaximo = 100;

/// So many years after the start, each stage counted from the start itself.
bool siguePendiente(const TramoIncentivo& tramo, const Entradas& e) {
    return e.FinMes < SumaFecha(Intervalo::Anio, tramo.Anios, e.FechaInicio);
}

/// The percentage of the stage in force at the end of the month.
double porcentajeEnVigor(const ContratoNomina& fila, const Entradas& e) {
    const bool primero = siguePendiente(fila.tramo1, e);
    const bool segundo = siguePendiente(fila.tramo2, e);
    const bool tercero = siguePendiente(fila.tramo3, e);
    if (primero) return fila.tramo1.Pct;
    if (segundo) return fila.tramo2.Pct;
    return tercero ? fila.tramo3.Pct : 0;
}

bool marcado(const ContratoNomina& fila, std::size_t lugar) {
    return fila.Flags.at(lugar) == 'S';
}

void ponPorcentaje(const ContratoNomina& fila, double porcentaje, Incentivos& i) {
    (fila.TipoIncentivo == "B" ? i.PctBonif : i.PctReduc) = porcentaje;
    i.EsReduccion = fila.TipoIncentivo == "R";
    i.BonifCC = marcado(fila, 0);
    i.BonifAT = marcado(fila, 1);
    i.BonifFogasa = i.BonifFP = i.BonifDes = marcado(fila, 2);
}

int antiguedad(const Entradas& e) {
    return DiferenciaFechas(Intervalo::Dia, e.FechaInicio, e.FinMes);
}

bool esSenior(const Entradas& e, int edad, double dias) {
    return e.IndiceContrato == kContratoSenior && e.Edad >= edad && antiguedad(e) > dias;
}

double bonificacionSenior60(const EstadoNomina& Estado) {
    const int porcentaje =
        Menor(kPctMaximo, (Estado.entradas.Edad - kEdadSenior60) * kPctPorAnio + kPctSenior60);
    return Centimos(porcentaje * Estado.cuotasCC.BaseReciboCC * kCuotaBonificable / 100);
}

double bonificacionCC(const EstadoNomina& Estado) {
    const Incentivos& i = Estado.incentivos;
    if (Senior65(Estado)) return 0;
    if (Senior60(Estado)) return bonificacionSenior60(Estado);
    return i.BonifCC ? Porcentaje(Estado.cuotasCC.EmpresaCC, i.PctBonif) : 0;
}

double reduccionCC(const EstadoNomina& Estado) {
    const Incentivos& i = Estado.incentivos;
    if (Senior65(Estado)) return Porcentaje(Estado.cuotasCC.BaseReciboCC, kReduccionSenior65);
    return i.EsReduccion ? Porcentaje(i.PctReduc, Estado.cuotasCC.EmpresaCC) : 0;
}

double bonificacionAT(const EstadoNomina& Estado) {
    const Incentivos& i = Estado.incentivos;
    const CuotasAT& c = Estado.cuotasAT;
    return i.BonifAT ? Porcentaje(c.ColumnaIT + c.ColumnaIMS, i.PctBonif) : 0;
}

double bonificacionParo(const EstadoNomina& Estado) {
    const Incentivos& i = Estado.incentivos;
    const CuotasParo& c = Estado.cuotasParo;
    double suma = 0;
    if (i.BonifFogasa) suma += Porcentaje(c.EmpresaFogasa, i.PctBonif);
    if (i.BonifFP) suma += Porcentaje(c.EmpresaFP, i.PctBonif);
    if (i.BonifDes) suma += Porcentaje(c.EmpresaParo, i.PctBonif);
    return suma;
}

}  // namespace

Incentivos CalculaIncentivos(const EstadoNomina& Estado, const TablasNomina& tablas) {
    const Entradas& e = Estado.entradas;
    const ContratoNomina& fila = tablas.contratos.fila(e.IndiceContrato);
    Incentivos i;
    const double porcentaje = porcentajeEnVigor(fila, e);
    if (porcentaje != 0) ponPorcentaje(fila, porcentaje, i);
    i.RecargoDesEmpresa = fila.RecargoEmpresa;
    i.RecargoDesTrab = fila.RecargoTrab;
    return i;
}

bool Senior65(const EstadoNomina& Estado) {
    return esSenior(Estado.entradas, kEdadSenior65, kDiasSenior65);
}

bool Senior60(const EstadoNomina& Estado) {
    return !Senior65(Estado) && esSenior(Estado.entradas, kEdadSenior60, kDiasSenior60);
}

Bonificaciones CalculaBonificaciones(const EstadoNomina& Estado) {
    Bonificaciones b;
    b.BonifPorCC = bonificacionCC(Estado);
    b.ReducPorCC = reduccionCC(Estado);
    b.BonifPorAT = bonificacionAT(Estado);
    b.BonifPorParo = bonificacionParo(Estado);
    b.Bonificacion = b.BonifPorCC + b.BonifPorAT + b.BonifPorParo;
    b.Reduccion = b.ReducPorCC;
    return b;
}

}  // namespace orvemo::nomina
