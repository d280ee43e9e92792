#include <string_view>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "payroll/recibo/recibo.h"

namespace orvemo::nomina {

namespace {

constexpr std::size_t kAncho = 78;
constexpr std::size_t kAnchoImporte = 15;

std::string importe(double euros) {
    return FormatoNumero(euros, "##,###,###,##0.00");
}

std::string tipo(double porcentaje) {
    return FormatoNumero(porcentaje, "##0.00##") + " %";
}

/// Rows with dots up to a column of amounts.
class Hoja {
  public:
    void titulo(std::string_view texto) { texto_.append(texto).append("\n"); }
    void apartado(std::string_view texto) { titulo("  " + std::string{texto}); }

    void fila(std::string_view sangria, std::string_view texto, double euros) {
        const std::string cifras = importe(euros);
        std::string linea = std::string{sangria}.append(texto).append(" ");
        const std::size_t ocupado = CuentaCaracteres(linea) + CuentaCaracteres(cifras);
        linea.append(ocupado < kAncho ? kAncho - ocupado - huecoDe(cifras) : 0, '.');
        titulo(linea.append(huecoDe(cifras), ' ').append(cifras));
    }
    void linea(std::string_view texto, double euros) { fila("     ", texto, euros); }
    /// Nothing for an amount of 0.
    void lineaSiHay(std::string_view texto, double euros) {
        if (euros != 0) linea(texto, euros);
    }

    [[nodiscard]] std::string texto() && { return std::move(texto_); }

  private:
    static std::size_t huecoDe(const std::string& cifras) {
        return cifras.size() < kAnchoImporte ? kAnchoImporte - cifras.size() : 1;
    }

    std::string texto_;
};

std::string cabecera(const EstadoNomina& Estado, const RegistroNomina& Registro) {
    const Entradas& e = Estado.entradas;
    const std::string mes = FormatoFecha(e.FinMes, "mmmm") + " de " + FormatoFecha(e.FinMes, "yyyy");
    const std::string paga = e.esPagaExtra() ? "Paga extraordinaria de " : "Recibo de salarios de ";
    return paga + mes + ". " + Registro.Nombre.utf8();
}

void escribeDevengos(const Recibo& recibo, Hoja& hoja) {
    hoja.titulo("I. DEVENGOS");
    hoja.apartado("1. Percepciones salariales");
    for (const LineaRecibo& linea : recibo.salariales) hoja.linea(linea.texto, linea.importe);
    hoja.apartado("2. Percepciones no salariales");
    for (const LineaRecibo& linea : recibo.noSalariales) hoja.linea(linea.texto, linea.importe);
    hoja.fila("  ", "A. TOTAL DEVENGADO", recibo.TotalDevengado);
}

void escribeAportaciones(const EstadoNomina& Estado, Hoja& hoja) {
    const CuotasCC& cc = Estado.cuotasCC;
    const CuotasParo& paro = Estado.cuotasParo;
    const CuotasHorasExtra& horas = Estado.cuotasHorasExtra;
    hoja.apartado("1. Aportación del trabajador a la Seguridad Social");
    hoja.linea("Contingencias comunes " + tipo(cc.TipoCCTrabajador), cc.CuotaCC);
    hoja.lineaSiHay("Contingencias comunes, desempleo parcial " + tipo(cc.TipoCCTrabajadorParcial),
                    cc.CuotaCCParcial);
    hoja.linea("Desempleo " + tipo(paro.TipoParoTrabajador), paro.CuotaParo);
    hoja.lineaSiHay("Desempleo, desempleo parcial " + tipo(paro.TipoParoTrabajadorParcial),
                    paro.CuotaParoParcial);
    hoja.linea("Formación profesional " + tipo(paro.TipoFPTrabajador), paro.CuotaFP);
    hoja.lineaSiHay("Formación profesional, desempleo parcial " + tipo(paro.TipoFPTrabajadorParcial),
                    paro.CuotaFPParcial);
    hoja.lineaSiHay("Horas extra por fuerza mayor " + tipo(horas.TipoHEFMTrabajador), horas.CuotaHEFM);
    hoja.lineaSiHay("Otras horas extra " + tipo(horas.TipoHERestoTrabajador), horas.CuotaHEResto);
    hoja.linea("TOTAL APORTACIONES", Estado.totales.TotalSS);
}

void escribeDeducciones(const EstadoNomina& Estado, const Recibo& recibo, Hoja& hoja) {
    const Devengos& d = Estado.devengos;
    hoja.titulo("II. DEDUCCIONES");
    escribeAportaciones(Estado, hoja);
    hoja.fila("  ", "2. IRPF " + tipo(d.TipoIRPF) + " de " + importe(d.BaseIRPF), recibo.IRPF);
    if (recibo.VacacionesEnExceso > 0)
        hoja.fila("  ", "3. Vacaciones disfrutadas en exceso", recibo.VacacionesEnExceso);
    hoja.fila("  ", "3. Anticipos", d.Anticipos);
    hoja.fila("  ", "4. Valor de los productos en especie", d.PagoEspecie);
    hoja.fila("  ", "5. Ingreso a cuenta por pagos en especie", d.IngresoCuentaEspecie);
    hoja.fila("  ", "B. TOTAL A DEDUCIR", recibo.TotalADeducir);
}

void escribeBases(const EstadoNomina& Estado, Hoja& hoja) {
    const Bases& b = Estado.bases;
    hoja.titulo("BASES DE COTIZACIÓN");
    hoja.linea("Remuneración mensual", b.AcumBaseCC);
    hoja.linea("Prorrata de pagas extraordinarias", b.BaseCCProrrata - b.AcumBaseCC);
    hoja.linea("Contingencias comunes", Estado.cuotasCC.BaseReciboCC);
    hoja.lineaSiHay("Contingencias comunes, desempleo parcial", Estado.cuotasCC.BaseReciboCCParcial);
    hoja.linea("Contingencias profesionales y recaudación conjunta", BaseRecaudacionConjunta(Estado));
    hoja.lineaSiHay("Recaudación conjunta, desempleo parcial", b.BaseParcial);
    hoja.lineaSiHay("Horas extraordinarias", Estado.devengos.HorasExtraFM + Estado.devengos.HorasExtraResto);
    hoja.linea("Base sujeta a retención del IRPF", Estado.devengos.BaseIRPF);
}

void escribeReciboAparte(const EstadoNomina& Estado, Hoja& hoja) {
    const double vacaciones = Mayor(Estado.finiquito.PPVacaciones, 0.0);
    if (vacaciones == 0 && Estado.devengos.PPExtras == 0) return;
    hoja.titulo("EN RECIBO APARTE");
    hoja.lineaSiHay("P.P. Vacaciones", vacaciones);
    hoja.lineaSiHay("P.P. Extras", Estado.devengos.PPExtras);
}

}  // namespace

std::string TextoRecibo(const EstadoNomina& Estado, const RegistroNomina& Registro) {
    const Recibo recibo = PreparaRecibo(Estado, Registro);
    Hoja hoja;
    hoja.titulo(cabecera(Estado, Registro));
    hoja.titulo("Días cotizados: " + TextoPlano(Estado.dias.DiasCotizados) +
                ", trabajados: " + TextoPlano(Estado.dias.DiasTrabajados));
    escribeDevengos(recibo, hoja);
    escribeDeducciones(Estado, recibo, hoja);
    hoja.titulo("");
    hoja.fila("", "LÍQUIDO TOTAL A PERCIBIR (A-B)", recibo.Liquido);
    hoja.titulo("");
    escribeBases(Estado, hoja);
    escribeReciboAparte(Estado, hoja);
    return std::move(hoja).texto();
}

}  // namespace orvemo::nomina
