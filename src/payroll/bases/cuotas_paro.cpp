#include "payroll/bases/cuotas.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"

namespace orvemo::nomina {
namespace {

// Rates for unemployment, wage guarantee fund (FOGASA) and training (FP) of 2005, percent (Ley 2/2004,
// art. 100).
constexpr double kFogasa = 0.4;  // the employer's alone
constexpr double kParoTrabajador = 1.55;
constexpr double kParoEmpresa = 6;
constexpr double kParoTotal = 7.55;
constexpr double kFPTrabajador = 0.1;
constexpr double kFPEmpresa = 0.6;
constexpr double kFPTotal = 0.7;
// On the part in unemployment the worker pays 65 % of them.
constexpr double kParoTrabajadorParcial = 1.0075;
constexpr double kFPTrabajadorParcial = 0.065;
constexpr double kFPTotalParcial = 0.665;

/// Monthly quotas of the training contracts, euros; they pay nothing for unemployment.
struct Fijas {
    double fogasa, trabajadorFP, empresaFP;
};
constexpr Fijas kFormacion{1.9, 0.14, 0.91};
constexpr Fijas kFormacion2{2.02, 0.14, 0.97};

CuotasParo fijas(const Fijas& cuotas) {
    CuotasParo c;
    c.EmpresaFogasa = cuotas.fogasa;
    c.CuotaFP = cuotas.trabajadorFP;
    c.EmpresaFP = cuotas.empresaFP;
    return c;
}

void ponLoTrabajado(const EstadoNomina& Estado, CuotasParo& c) {
    const Incentivos& i = Estado.incentivos;
    const double base = Estado.bases.BaseParoSinMat;
    c.EmpresaFogasa = Porcentaje(base, kFogasa);
    c.CuotaParo = Porcentaje(kParoTrabajador + i.RecargoDesTrab, base);
    c.EmpresaParo = Porcentaje(kParoEmpresa + i.RecargoDesEmpresa, base);
    c.CuotaFP = Porcentaje(base, kFPTrabajador);
    c.EmpresaFP = Porcentaje(base, kFPEmpresa);
}

/// The employer goes on paying for the days of maternity, at the plain rates.
void agregaMaternidad(const Bases& b, CuotasParo& c) {
    const double base = b.BaseParo - b.BaseParoSinMat;
    c.EmpresaFogasa += Porcentaje(base, kFogasa);
    c.EmpresaParo += Porcentaje(base, kParoEmpresa);
    c.EmpresaFP += Porcentaje(base, kFPEmpresa);
}

void agregaDesempleo(const EstadoNomina& Estado, CuotasParo& c) {
    const double base = Estado.bases.BaseParcial;
    c.EmpresaFogasaParcial = Porcentaje(base, kFogasa);
    c.EmpresaParoParcial = Porcentaje(kParoEmpresa + Estado.incentivos.RecargoDesEmpresa, base);
    c.CuotaParoParcial = Porcentaje(base, kParoTrabajadorParcial);
    c.EmpresaFPParcial = Porcentaje(base, kFPEmpresa);
    c.CuotaFPParcial = Porcentaje(base, kFPTrabajadorParcial);
}

CuotasParo generales(const EstadoNomina& Estado) {
    CuotasParo c;
    ponLoTrabajado(Estado, c);
    if (Estado.entradas.hayDesempleoParcial()) {
        agregaDesempleo(Estado, c);
    } else {
        agregaMaternidad(Estado.bases, c);
    }
    return c;
}

CuotasParo cuotasDelContrato(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    if (e.esPagaExtra()) return {};
    if (e.esFormacion()) return fijas(kFormacion);
    return e.esFormacion2() ? fijas(kFormacion2) : generales(Estado);
}

void ponTipos(const Incentivos& i, CuotasParo& c) {
    c.TipoParoTrabajador = kParoTrabajador + i.RecargoDesTrab;
    c.TipoFPTrabajador = kFPTrabajador;
    c.TipoParoTotal = kParoTotal + i.RecargoDesEmpresa + i.RecargoDesTrab;
    c.TipoFPTotal = kFPTotal;
    c.TipoFogasa = kFogasa;
}

void ponTiposParciales(const Incentivos& i, CuotasParo& c) {
    c.TipoParoTrabajadorParcial = kParoTrabajadorParcial;
    c.TipoFPTrabajadorParcial = kFPTrabajadorParcial;
    c.TipoParoTotalParcial = kParoEmpresa + i.RecargoDesEmpresa + kParoTrabajadorParcial;
    c.TipoFPTotalParcial = kFPTotalParcial;
    c.TipoFogasaParcial = kFogasa;
}

}  // namespace

CuotasParo CalculaCuotasParo(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    CuotasParo c = cuotasDelContrato(Estado);
    if (e.tieneCuotasFijas()) return c;
    ponTipos(Estado.incentivos, c);
    if (e.hayDesempleoParcial()) ponTiposParciales(Estado.incentivos, c);
    return c;
}

}  // namespace orvemo::nomina
