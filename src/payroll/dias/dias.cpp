#include "payroll/dias/dias.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

#include "foundations/values/numeros.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"
#include "payroll/caso/nomina_registro.h"
#include "payroll/dias/calendario.h"

namespace orvemo::nomina {
namespace {

/// What happened, by the figure that begins its item in the list.
enum Tipo { Ninguna, Enfermedad, Accidente, Maternidad, Permiso, Huelga };

/// A stage of a sick leave: the last day of the leave in it and the counters that its days feed.
struct Etapa {
    int hasta;
    Octeto Dias::*dias;
    Octeto Dias::*laborables;
};
// clang-format off
constexpr std::array kEtapas{
    Etapa{ 3, &Dias::DiasIT1a3,   &Dias::LabIT1a3},
    Etapa{15, &Dias::DiasIT4a15,  &Dias::LabIT4a15},
    Etapa{20, &Dias::DiasIT16a20, &Dias::LabIT16a20},
    Etapa{std::numeric_limits<int>::max(), &Dias::DiasIT21, &Dias::LabIT21},
};
// clang-format on

const Etapa& etapaDe(int orden) {
    return *std::ranges::lower_bound(kEtapas, orden, {}, &Etapa::hasta);
}

/// Throws FechaInexistente for a day that the month lacks.
bool esLaborable(int dia, const Entradas& e) {
    return EsLaborable(FechaDMA(dia, e.Mes, kAnioNomina), e.DiasSemana);
}

int cuentaLaborables(int desde, int hasta, const Entradas& e) {
    int laborables = 0;
    for (int dia = desde; dia <= hasta; ++dia)
        if (esLaborable(dia, e)) ++laborables;
    return laborables;
}

bool esDelMes(Fecha fecha, const Entradas& e) {
    return Anio(fecha) == kAnioNomina && Mes(fecha) == e.Mes;
}

void dejaFueraDelContrato(int dias, Dias& d) {
    d.DiasFueraContrato += dias;
    d.DiasTrabajados -= dias;
}

void descuentaFueraDelContrato(const Entradas& e, Dias& d) {
    const auto cese = FechaDeCese(e);
    if (esDelMes(e.FechaInicio, e)) dejaFueraDelContrato(Dia(e.FechaInicio) - 1, d);
    if (cese && esDelMes(*cese, e)) dejaFueraDelContrato(d.DiasMes - Dia(*cese), d);
}

/// The order of the days goes on from one incidence to the next. A contract of every day works them all.
void ReparteDiasIT(int Dia1, int Dia2, const Entradas& e, Dias& d) {
    for (int dia = Dia1; dia <= Dia2; ++dia) {
        const bool laborable = esLaborable(dia, e) || !e.ContratoParcial;
        const Etapa& etapa = etapaDe(++d.OrdenIT);
        ++(d.*etapa.dias);
        if (!laborable) continue;
        ++d.LabIT;
        ++(d.*etapa.laborables);
    }
}

void anotaEnfermedad(int Dia1, int Dia2, int n, const Entradas& e, Dias& d) {
    d.DiasIT += n;
    ReparteDiasIT(Dia1, Dia2, e, d);
}

/// The first day of an accident is still worked, and paid by the company.
void anotaAccidente(int Dia1, int Dia2, int n, const Entradas& e, Dias& d) {
    d.DiasAT += n - 1;
    d.LabAT += cuentaLaborables(Dia1 + 1, Dia2, e);
}

void anotaMaternidad(int Dia1, int Dia2, int n, const Entradas& e, Dias& d) {
    d.DiasMat += n;
    d.LabMat += cuentaLaborables(Dia1, Dia2, e);
}

void anotaAusencia(Octeto Dias::*contador, int n, Dias& d) {
    d.DiasTrabajados -= n;
    d.*contador += n;
}

void ClasificaIncidencia(int Dia1, int Dia2, int tipo, const Entradas& e, Dias& d) {
    if (tipo == Ninguna) return;
    const Octeto n{Dia2 - Dia1 + 1};
    switch (tipo) {
        case Enfermedad:
            return anotaEnfermedad(Dia1, Dia2, n, e, d);
        case Accidente:
            return anotaAccidente(Dia1, Dia2, n, e, d);
        case Maternidad:
            return anotaMaternidad(Dia1, Dia2, n, e, d);
        case Permiso:
            return anotaAusencia(&Dias::DiasPermiso, n, d);
        case Huelga:
            return anotaAusencia(&Dias::DiasHuelga, n, d);
        default:
            return;
    }
}

void clasificaIncidencias(const RegistroNomina& Registro, const Entradas& e, Dias& d) {
    for (std::size_t i = 0; i < kIncidencias; ++i) {
        const int tipo = RedondeaPar(LeeNumero(Registro.CodigoIncidencia.at(i).utf8()));
        ClasificaIncidencia(Registro.DiaInicioInci.at(i), Registro.DiaFinInci.at(i), tipo, e, d);
    }
}

/// More leave than days worked is a failure. Part-time workers with leave count the days of their week alone.
void descuentaBaja(const Entradas& e, Dias& d) {
    d.DiasIT = d.DiasIT1a3 + d.DiasIT4a15 + d.DiasIT16a20 + d.DiasIT21;
    d.DiasBaja = d.DiasIT + d.DiasAT + d.DiasMat;
    d.DiasTrabajados -= d.DiasBaja;
    if (e.ContratoParcial && d.laborablesDeBaja() != 0)
        d.DiasTrabajados = d.LabMes - d.LabIT - d.LabAT - d.LabMat;
}

void cuentaCotizados(const Entradas& e, Dias& d) {
    d.DiasNoCotizados = d.DiasHuelga + d.DiasPermiso + d.DiasFueraContrato;
    d.DiasCotizados = e.cobraPorMeses() ? kDiasPorMes : int{d.DiasMes};
    if (d.DiasNoCotizados != 0) d.DiasCotizados = d.DiasTrabajados + d.DiasBaja;
    if (d.DiasBaja != 0) d.DiasBajaCotizados = d.DiasCotizados - d.DiasTrabajados;
}

}  // namespace

Dias CalculaDias(const EstadoNomina& Estado, const RegistroNomina& Registro) {
    const Entradas& e = Estado.entradas;
    Dias d;
    d.DiasMes = DiasDelMes(e.Mes);
    d.DiasTrabajados = d.DiasMes;
    descuentaFueraDelContrato(e, d);
    if (e.ContratoParcial) d.LabMes = cuentaLaborables(1, d.DiasMes, e);
    clasificaIncidencias(Registro, e, d);
    descuentaBaja(e, d);
    cuentaCotizados(e, d);
    return d;
}

}  // namespace orvemo::nomina
