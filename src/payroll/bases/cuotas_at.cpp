#include "payroll/bases/cuotas.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"

namespace orvemo::nomina {
namespace {

// The rates of leave and of unemployment, whatever the epigraph of the work, 2005, percent.
constexpr double kBajaIT = 0.27;
constexpr double kBajaIMS = 0.54;

/// Monthly quotas of the training contracts, euros.
struct Fijas {
    double IT, IMS;
};
constexpr Fijas kFormacion{1.91, 1.51};
constexpr Fijas kFormacion2{2.04, 1.59};

CuotasAT fijas(const Fijas& cuotas) {
    CuotasAT c;
    c.ColumnaIT = cuotas.IT;
    c.ColumnaIMS = cuotas.IMS;
    return c;
}

void suma(CuotasAT& c) {
    c.ColumnaIT = c.ATEPTrabajoIT + c.ATEPBajaIT + c.ATEPPermisoIT;
    c.ColumnaIMS = c.ATEPTrabajoIMS + c.ATEPBajaIMS + c.ATEPPermisoIMS;
}

CuotasAT generales(const EstadoNomina& Estado, const Epigrafes& epigrafes) {
    const Entradas& e = Estado.entradas;
    const Bases& b = Estado.bases;
    const double trabajada = Centimos((1 - e.CoefDesempleo) * b.BaseAT);
    const double desempleada = Centimos(e.CoefDesempleo * b.BaseAT);
    CuotasAT c;
    c.ATEPTrabajoIT = epigrafes.CuotaIT(trabajada, e.Epigrafe);
    c.ATEPTrabajoIMS = epigrafes.CuotaIMS(trabajada, e.Epigrafe);
    c.ATEPBajaIT = Porcentaje(b.BaseATBaja, kBajaIT);
    c.ATEPBajaIMS = Porcentaje(b.BaseATBaja, kBajaIMS);
    c.ATEPPermisoIT = epigrafes.CuotaIT(b.BasePermisoAT, e.Epigrafe);
    c.ATEPPermisoIMS = epigrafes.CuotaIMS(b.BasePermisoAT, e.Epigrafe);
    c.ATEPParcialIT = Porcentaje(desempleada, kBajaIT);
    c.ATEPParcialIMS = Porcentaje(desempleada, kBajaIMS);
    suma(c);
    return c;
}

CuotasAT cuotasDelContrato(const EstadoNomina& Estado, const Epigrafes& epigrafes) {
    const Entradas& e = Estado.entradas;
    if (e.esPagaExtra()) return {};
    if (e.esFormacion()) return fijas(kFormacion);
    return e.esFormacion2() ? fijas(kFormacion2) : generales(Estado, epigrafes);
}

}  // namespace

CuotasAT CalculaCuotasAT(const EstadoNomina& Estado, const TablasNomina& tablas) {
    CuotasAT c = cuotasDelContrato(Estado, tablas.epigrafes);
    c.TotalAT = c.ColumnaIT + c.ColumnaIMS + (c.ATEPParcialIT + c.ATEPParcialIMS);
    return c;
}

}  // namespace orvemo::nomina
