#pragma once

#include <tuple>

#include "payroll/caso/nombrado.h"

namespace orvemo::nomina {

struct EstadoNomina;
struct TablasNomina;

/// Quotas on the base for common contingencies, euros; rates in percent. "Parcial" is what partial
/// unemployment sets apart. "Trabajador" pays out of the pay, "Empresa" on top of it.
struct CuotasCC {
    double TrabajadorBaseCC = 0, TrabajadorIT = 0, TrabajadorPermiso = 0;
    double TrabajadorBaseCCParcial = 0, TrabajadorITParcial = 0, TrabajadorPermisoParcial = 0;
    double EmpresaBaseCC = 0, EmpresaIT = 0, EmpresaMat = 0, EmpresaPermiso = 0;
    double BaseReciboCC = 0, BaseReciboCCParcial = 0;  ///< bases that the receipt shows
    double CuotaCC = 0, CuotaCCParcial = 0;            ///< the worker's, added
    double EmpresaCC = 0;                              ///< the employer's, added, without maternity
    double TotalCC = 0, TotalCCParcial = 0;            ///< both
    double TipoCCTrabajador = 0, TipoCCTrabajadorParcial = 0;
    double TipoCCTotal = 0, TipoCCTotalParcial = 0;
};

/// The employer's quotas for work accidents and occupational disease, euros: temporary incapacity (IT) and
/// invalidity, death and survival (IMS).
struct CuotasAT {
    double ATEPTrabajoIT = 0, ATEPTrabajoIMS = 0;  ///< days worked, at the rates of the epigraph
    double ATEPBajaIT = 0, ATEPBajaIMS = 0;        ///< days of leave, at the fixed pair
    double ATEPPermisoIT = 0, ATEPPermisoIMS = 0;  ///< unpaid leave, at the rates of the epigraph
    double ATEPParcialIT = 0, ATEPParcialIMS = 0;  ///< partial unemployment, at the fixed pair
    double ColumnaIT = 0, ColumnaIMS = 0;          ///< the sums that the form shows
    double TotalAT = 0;
};

/// Quotas for unemployment, wage guarantee fund (FOGASA) and training (FP), euros; rates in percent.
struct CuotasParo {
    double CuotaFogasa = 0, CuotaParo = 0, CuotaFP = 0;  ///< the worker's
    double CuotaFogasaParcial = 0, CuotaParoParcial = 0, CuotaFPParcial = 0;
    double EmpresaFogasa = 0, EmpresaParo = 0, EmpresaFP = 0;  ///< the employer's
    double EmpresaFogasaParcial = 0, EmpresaParoParcial = 0, EmpresaFPParcial = 0;
    double TipoParoTrabajador = 0, TipoFPTrabajador = 0;
    double TipoParoTotal = 0, TipoFPTotal = 0, TipoFogasa = 0;
    double TipoParoTrabajadorParcial = 0, TipoFPTrabajadorParcial = 0;
    double TipoParoTotalParcial = 0, TipoFPTotalParcial = 0, TipoFogasaParcial = 0;
};

/// Quotas on overtime, euros; rates in percent: by force majeure (FM) and other.
struct CuotasHorasExtra {
    double CuotaHEFM = 0, CuotaHEResto = 0;  ///< the worker's
    double EmpresaHEFM = 0, EmpresaHEResto = 0;
    double TipoHEFM = 0, TipoHEResto = 0;  ///< both
    double TipoHEFMTrabajador = 0, TipoHERestoTrabajador = 0;
};

/// What the worker is left with, euros.
struct Totales {
    double TotalSS = 0;  ///< all the worker's quotas
    double TotalDeducir = 0;
    double Liquido = 0;
};

inline constexpr std::tuple kCamposCuotasCC{
    Nombrado{"TrabajadorBaseCC", &CuotasCC::TrabajadorBaseCC},
    Nombrado{"TrabajadorIT", &CuotasCC::TrabajadorIT},
    Nombrado{"TrabajadorPermiso", &CuotasCC::TrabajadorPermiso},
    Nombrado{"TrabajadorBaseCCParcial", &CuotasCC::TrabajadorBaseCCParcial},
    Nombrado{"TrabajadorITParcial", &CuotasCC::TrabajadorITParcial},
    Nombrado{"TrabajadorPermisoParcial", &CuotasCC::TrabajadorPermisoParcial},
    Nombrado{"EmpresaBaseCC", &CuotasCC::EmpresaBaseCC},
    Nombrado{"EmpresaIT", &CuotasCC::EmpresaIT},
    Nombrado{"EmpresaMat", &CuotasCC::EmpresaMat},
    Nombrado{"EmpresaPermiso", &CuotasCC::EmpresaPermiso},
    Nombrado{"BaseReciboCC", &CuotasCC::BaseReciboCC},
    Nombrado{"BaseReciboCCParcial", &CuotasCC::BaseReciboCCParcial},
    Nombrado{"CuotaCC", &CuotasCC::CuotaCC},
    Nombrado{"CuotaCCParcial", &CuotasCC::CuotaCCParcial},
    Nombrado{"EmpresaCC", &CuotasCC::EmpresaCC},
    Nombrado{"TotalCC", &CuotasCC::TotalCC},
    Nombrado{"TotalCCParcial", &CuotasCC::TotalCCParcial},
    Nombrado{"TipoCCTrabajador", &CuotasCC::TipoCCTrabajador},
    Nombrado{"TipoCCTrabajadorParcial", &CuotasCC::TipoCCTrabajadorParcial},
    Nombrado{"TipoCCTotal", &CuotasCC::TipoCCTotal},
    Nombrado{"TipoCCTotalParcial", &CuotasCC::TipoCCTotalParcial}};

inline constexpr std::tuple kCamposCuotasAT{Nombrado{"ATEPTrabajoIT", &CuotasAT::ATEPTrabajoIT},
                                            Nombrado{"ATEPTrabajoIMS", &CuotasAT::ATEPTrabajoIMS},
                                            Nombrado{"ATEPBajaIT", &CuotasAT::ATEPBajaIT},
                                            Nombrado{"ATEPBajaIMS", &CuotasAT::ATEPBajaIMS},
                                            Nombrado{"ATEPPermisoIT", &CuotasAT::ATEPPermisoIT},
                                            Nombrado{"ATEPPermisoIMS", &CuotasAT::ATEPPermisoIMS},
                                            Nombrado{"ATEPParcialIT", &CuotasAT::ATEPParcialIT},
                                            Nombrado{"ATEPParcialIMS", &CuotasAT::ATEPParcialIMS},
                                            Nombrado{"ColumnaIT", &CuotasAT::ColumnaIT},
                                            Nombrado{"ColumnaIMS", &CuotasAT::ColumnaIMS},
                                            Nombrado{"TotalAT", &CuotasAT::TotalAT}};

inline constexpr std::tuple kCamposCuotasParo{
    Nombrado{"CuotaFogasa", &CuotasParo::CuotaFogasa},
    Nombrado{"CuotaParo", &CuotasParo::CuotaParo},
    Nombrado{"CuotaFP", &CuotasParo::CuotaFP},
    Nombrado{"CuotaFogasaParcial", &CuotasParo::CuotaFogasaParcial},
    Nombrado{"CuotaParoParcial", &CuotasParo::CuotaParoParcial},
    Nombrado{"CuotaFPParcial", &CuotasParo::CuotaFPParcial},
    Nombrado{"EmpresaFogasa", &CuotasParo::EmpresaFogasa},
    Nombrado{"EmpresaParo", &CuotasParo::EmpresaParo},
    Nombrado{"EmpresaFP", &CuotasParo::EmpresaFP},
    Nombrado{"EmpresaFogasaParcial", &CuotasParo::EmpresaFogasaParcial},
    Nombrado{"EmpresaParoParcial", &CuotasParo::EmpresaParoParcial},
    Nombrado{"EmpresaFPParcial", &CuotasParo::EmpresaFPParcial},
    Nombrado{"TipoParoTrabajador", &CuotasParo::TipoParoTrabajador},
    Nombrado{"TipoFPTrabajador", &CuotasParo::TipoFPTrabajador},
    Nombrado{"TipoParoTotal", &CuotasParo::TipoParoTotal},
    Nombrado{"TipoFPTotal", &CuotasParo::TipoFPTotal},
    Nombrado{"TipoFogasa", &CuotasParo::TipoFogasa},
    Nombrado{"TipoParoTrabajadorParcial", &CuotasParo::TipoParoTrabajadorParcial},
    Nombrado{"TipoFPTrabajadorParcial", &CuotasParo::TipoFPTrabajadorParcial},
    Nombrado{"TipoParoTotalParcial", &CuotasParo::TipoParoTotalParcial},
    Nombrado{"TipoFPTotalParcial", &CuotasParo::TipoFPTotalParcial},
    Nombrado{"TipoFogasaParcial", &CuotasParo::TipoFogasaParcial}};

inline constexpr std::tuple kCamposCuotasHorasExtra{
    Nombrado{"CuotaHEFM", &CuotasHorasExtra::CuotaHEFM},
    Nombrado{"CuotaHEResto", &CuotasHorasExtra::CuotaHEResto},
    Nombrado{"EmpresaHEFM", &CuotasHorasExtra::EmpresaHEFM},
    Nombrado{"EmpresaHEResto", &CuotasHorasExtra::EmpresaHEResto},
    Nombrado{"TipoHEFM", &CuotasHorasExtra::TipoHEFM},
    Nombrado{"TipoHEResto", &CuotasHorasExtra::TipoHEResto},
    Nombrado{"TipoHEFMTrabajador", &CuotasHorasExtra::TipoHEFMTrabajador},
    Nombrado{"TipoHERestoTrabajador", &CuotasHorasExtra::TipoHERestoTrabajador}};

inline constexpr std::tuple kCamposTotales{Nombrado{"TotalSS", &Totales::TotalSS},
                                           Nombrado{"TotalDeducir", &Totales::TotalDeducir},
                                           Nombrado{"Liquido", &Totales::Liquido}};

[[nodiscard]] CuotasCC CalculaCuotasCC(const EstadoNomina& Estado);
[[nodiscard]] CuotasAT CalculaCuotasAT(const EstadoNomina& Estado, const TablasNomina& tablas);
[[nodiscard]] CuotasParo CalculaCuotasParo(const EstadoNomina& Estado);
/// Ordinary payslips alone, and not those of training contracts.
[[nodiscard]] CuotasHorasExtra CalculaCuotasHorasExtra(const EstadoNomina& Estado);
[[nodiscard]] Totales CalculaTotales(const EstadoNomina& Estado);

/// Fills the incentives, the quotas, the bonuses and the totals of `Estado`, in this order.
void CalculaCuotas(EstadoNomina& Estado, const TablasNomina& tablas);

}  // namespace orvemo::nomina
