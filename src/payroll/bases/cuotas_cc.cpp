#include "payroll/bases/cuotas.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"

namespace orvemo::nomina {
namespace {

// Rates for common contingencies of 2005, percent (Ley 2/2004, art. 100).
constexpr double kTrabajador = 4.7;
constexpr double kEmpresa = 23.6;
constexpr double kTotal = 28.3;
constexpr double kTrabajadorParcial = 3.055;  // of the part in unemployment: 65 % of the worker's
constexpr double kTotalParcial = 26.655;
constexpr double kTrabajadorSenior = 0.28;

/// Monthly quotas of the training contracts, euros.
struct Fijas {
    double trabajador, empresa;
};
constexpr Fijas kFormacion{4.95, 24.82};
constexpr Fijas kFormacion2{5.25, 26.35};

CuotasCC fijas(const Fijas& cuotas) {
    CuotasCC c;
    c.TrabajadorBaseCC = cuotas.trabajador;
    c.EmpresaBaseCC = cuotas.empresa;
    return c;
}

/// The worker pays on the part of the bases that is worked.
void ponTrabajador(const Bases& b, double trabajada, CuotasCC& c) {
    c.TrabajadorBaseCC = Centimos(b.BaseCC * kTrabajador * trabajada / 100);
    c.TrabajadorIT = Centimos(b.BaseITSinMat * kTrabajador * trabajada / 100);
    c.TrabajadorPermiso = Centimos(b.BasePermiso * kTrabajador * trabajada / 100);
}

/// And less on the part in unemployment.
void ponTrabajadorParcial(const Bases& b, const Entradas& e, CuotasCC& c) {
    const double desempleo = e.CoefDesempleo;
    c.TrabajadorBaseCCParcial = Centimos(e.Promedio6Meses * kTrabajadorParcial * desempleo / 100);
    c.TrabajadorITParcial = Centimos(b.BaseITSinMat * kTrabajadorParcial * desempleo / 100);
    c.TrabajadorPermisoParcial = Centimos(b.BasePermiso * kTrabajadorParcial * desempleo / 100);
}

void ponEmpresa(const Bases& b, CuotasCC& c) {
    c.EmpresaBaseCC = Porcentaje(b.BaseCC, kEmpresa);
    c.EmpresaIT = Porcentaje(b.BaseITSinMat, kEmpresa);
    c.EmpresaMat = Porcentaje(b.BaseITMat, kEmpresa);
    c.EmpresaPermiso = Porcentaje(b.BasePermiso, kEmpresa);
}

CuotasCC generales(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    CuotasCC c;
    ponTrabajador(Estado.bases, e.hayDesempleoParcial() ? 1 - e.CoefDesempleo : 1, c);
    if (e.hayDesempleoParcial()) ponTrabajadorParcial(Estado.bases, e, c);
    ponEmpresa(Estado.bases, c);
    return c;
}

CuotasCC cuotasDelContrato(const EstadoNomina& Estado) {
    const Entradas& e = Estado.entradas;
    if (e.esPagaExtra()) return {};
    if (e.esFormacion()) return fijas(kFormacion);
    return e.esFormacion2() ? fijas(kFormacion2) : generales(Estado);
}

void ponBasesDelRecibo(const EstadoNomina& Estado, CuotasCC& c) {
    const Entradas& e = Estado.entradas;
    const Bases& b = Estado.bases;
    c.BaseReciboCC = b.BaseCC + b.BaseITSinMat + b.BasePermiso;
    if (!e.hayDesempleoParcial()) return;
    c.BaseReciboCC = Centimos(c.BaseReciboCC * (1 - e.CoefDesempleo));
    if (e.cotizaPorTipos()) c.BaseReciboCCParcial = Centimos(e.Promedio6Meses * e.CoefDesempleo);
}

/// From 65 on the worker pays another rate on `BaseCC`, whatever is worked of it.
void rebajaAlSenior(const EstadoNomina& Estado, CuotasCC& c) {
    if (Senior65(Estado)) c.TrabajadorBaseCC = Porcentaje(Estado.bases.BaseCC, kTrabajadorSenior);
}

/// The employer's quota on maternity stays apart.
void suma(CuotasCC& c) {
    c.CuotaCC = c.TrabajadorIT + c.TrabajadorBaseCC + c.TrabajadorPermiso;
    c.CuotaCCParcial = c.TrabajadorBaseCCParcial + c.TrabajadorITParcial + c.TrabajadorPermisoParcial;
    c.EmpresaCC = Centimos(c.EmpresaIT + c.EmpresaBaseCC + c.EmpresaPermiso);
}

void totaliza(const Entradas& e, CuotasCC& c) {
    c.TotalCC = c.CuotaCC + c.CuotaCCParcial + c.EmpresaCC;
    if (!e.hayDesempleoParcial() || e.tieneCuotasFijas()) return;
    c.TotalCC = Centimos((1 - e.CoefDesempleo) * c.EmpresaCC) + c.CuotaCC;
    c.TotalCCParcial = Centimos(c.EmpresaCC * e.CoefDesempleo) + c.CuotaCCParcial;
}

void ponTipos(const EstadoNomina& Estado, CuotasCC& c) {
    if (Estado.entradas.tieneCuotasFijas()) return;
    c.TipoCCTrabajador = Senior65(Estado) ? kTrabajadorSenior : kTrabajador;
    c.TipoCCTotal = kTotal;
    if (!Estado.entradas.hayDesempleoParcial()) return;
    c.TipoCCTrabajadorParcial = kTrabajadorParcial;
    c.TipoCCTotalParcial = kTotalParcial;
}

}  // namespace

CuotasCC CalculaCuotasCC(const EstadoNomina& Estado) {
    CuotasCC c = cuotasDelContrato(Estado);
    ponBasesDelRecibo(Estado, c);
    rebajaAlSenior(Estado, c);
    suma(c);
    totaliza(Estado.entradas, c);
    ponTipos(Estado, c);
    return c;
}

}  // namespace orvemo::nomina
