#include "payroll/bases/cuotas.h"

#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"

namespace orvemo::nomina {
namespace {

// Rates on overtime of 2005, percent (Ley 2/2004, art. 100): by force majeure (FM) and other.
constexpr double kTrabajadorFM = 2;
constexpr double kEmpresaFM = 12;
constexpr double kTotalFM = 14;
constexpr double kTrabajadorResto = 4.7;
constexpr double kEmpresaResto = 23.6;
constexpr double kTotalResto = 28.3;

double sumaTrabajador(const EstadoNomina& Estado) {
    const CuotasCC& cc = Estado.cuotasCC;
    const CuotasParo& p = Estado.cuotasParo;
    const CuotasHorasExtra& h = Estado.cuotasHorasExtra;
    return p.CuotaParo + cc.CuotaCC + p.CuotaFogasa + p.CuotaFP + h.CuotaHEFM + h.CuotaHEResto +
           cc.CuotaCCParcial + p.CuotaParoParcial + p.CuotaFogasaParcial + p.CuotaFPParcial;
}

}  // namespace

CuotasHorasExtra CalculaCuotasHorasExtra(const EstadoNomina& Estado) {
    CuotasHorasExtra c;
    if (!Estado.entradas.cotizaPorTipos()) return c;
    const Devengos& d = Estado.devengos;
    c.CuotaHEFM = Porcentaje(d.HorasExtraFM, kTrabajadorFM);
    c.EmpresaHEFM = Porcentaje(d.HorasExtraFM, kEmpresaFM);
    c.TipoHEFM = kTotalFM;
    c.CuotaHEResto = Porcentaje(d.HorasExtraResto, kTrabajadorResto);
    c.EmpresaHEResto = Porcentaje(d.HorasExtraResto, kEmpresaResto);
    c.TipoHEResto = kTotalResto;
    c.TipoHEFMTrabajador = kTrabajadorFM;
    c.TipoHERestoTrabajador = kTrabajadorResto;
    return c;
}

Totales CalculaTotales(const EstadoNomina& Estado) {
    const Devengos& d = Estado.devengos;
    Totales t;
    t.TotalSS = sumaTrabajador(Estado);
    t.TotalDeducir = Finito(t.TotalSS + d.RetencionIRPF + d.Anticipos + d.PagoEspecie +
                            d.IngresoCuentaEspecie + Estado.entradas.OtrasDeducciones);
    t.Liquido = d.TotalDevengado - t.TotalDeducir;
    return t;
}

void CalculaCuotas(EstadoNomina& Estado, const TablasNomina& tablas) {
    Estado.incentivos = CalculaIncentivos(Estado, tablas);
    Estado.cuotasCC = CalculaCuotasCC(Estado);
    Estado.cuotasAT = CalculaCuotasAT(Estado, tablas);
    Estado.cuotasParo = CalculaCuotasParo(Estado);
    Estado.cuotasHorasExtra = CalculaCuotasHorasExtra(Estado);
    Estado.bonificaciones = CalculaBonificaciones(Estado);
    Estado.totales = CalculaTotales(Estado);
}

}  // namespace orvemo::nomina
