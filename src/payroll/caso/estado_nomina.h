#pragma once

#include "payroll/bases/bases.h"
#include "payroll/bases/cuotas.h"
#include "payroll/caso/entradas.h"
#include "payroll/contratos/contratos.h"
#include "payroll/contratos/epigrafes.h"
#include "payroll/contratos/incentivos.h"
#include "payroll/dias/dias.h"
#include "payroll/finiquito/finiquito.h"
#include "payroll/salario/devengos.h"
#include "payroll/salario/prestaciones.h"

namespace orvemo::nomina {

/// The tables that change with the law.
struct TablasNomina {
    Contratos contratos;
    Epigrafes epigrafes;
};

/// A payslip: what it is computed from and, step by step, all that comes of it. Each step reads those before
/// and gives its own part.
struct EstadoNomina {
    Entradas entradas;
    Dias dias;
    BasesReguladoras reguladoras;
    Prestaciones prestaciones;
    double Prorrata = 0;        ///< share of the extra pays, of a month or of a day, euros
    double SalarioMensual = 0;  ///< of reference for the settlement, euros
    Finiquito finiquito;
    Devengos devengos;
    Bases bases;
    Incentivos incentivos;
    CuotasCC cuotasCC;
    CuotasAT cuotasAT;
    CuotasParo cuotasParo;
    CuotasHorasExtra cuotasHorasExtra;
    Bonificaciones bonificaciones;
    Totales totales;
};

/// Calls `accion(nombre, valor)` for each quota and rate.
void CadaCuota(const EstadoNomina& estado, auto&& accion) {
    CadaCampo(estado.cuotasCC, kCamposCuotasCC, accion);
    CadaCampo(estado.cuotasAT, kCamposCuotasAT, accion);
    CadaCampo(estado.cuotasParo, kCamposCuotasParo, accion);
    CadaCampo(estado.cuotasHorasExtra, kCamposCuotasHorasExtra, accion);
    CadaCampo(estado.bonificaciones, kCamposBonificaciones, accion);
}

/// Calls `accion(nombre, valor)` for each field, in the order of the calculation.
void CadaCampo(const EstadoNomina& estado, auto&& accion) {
    CadaCampo(estado.entradas, kCamposEntradas, accion);
    CadaCampo(estado.dias, kCamposDias, accion);
    CadaCampo(estado.reguladoras, kCamposBasesReguladoras, accion);
    CadaCampo(estado.prestaciones, kCamposPrestaciones, accion);
    accion("Prorrata", estado.Prorrata);
    accion("SalarioMensual", estado.SalarioMensual);
    CadaCampo(estado.finiquito, kCamposFiniquito, accion);
    CadaCampo(estado.devengos, kCamposDevengos, accion);
    CadaCampo(estado.bases, kCamposBases, accion);
    CadaCampo(estado.incentivos, kCamposIncentivos, accion);
    CadaCuota(estado, accion);
    CadaCampo(estado.totales, kCamposTotales, accion);
}

}  // namespace orvemo::nomina
