#include "payroll/recibo/recibo.h"

#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "payroll/conceptos/conceptos.h"

namespace orvemo::nomina {

namespace {

/// Of commercial agents: they pay in the whole quota, and the company hands them its part.
constexpr std::string_view kRepresentantes = "102";

/// The text of a line. "#" and a figure would be one of the extra pays of the settlement; no line is one.
std::string textoDeLinea(const std::string& codigo, const RegistroNomina& Registro) {
    if (!codigo.starts_with('#')) return std::string{TextoConcepto(codigo)};
    const auto i = static_cast<std::size_t>(codigo.back() - '0');
    return i < Registro.FConcepto.size() ? Registro.FConcepto[i].utf8() : std::string{};
}

void repartePorGrupos(const EstadoNomina& Estado, const RegistroNomina& Registro, Recibo& recibo) {
    const Devengos& d = Estado.devengos;
    for (std::size_t i = 0; i < static_cast<std::size_t>(d.NumLineas); ++i) {
        auto& grupo = d.LineaSalarial[i] ? recibo.salariales : recibo.noSalariales;
        grupo.push_back({textoDeLinea(d.LineaCodigo[i], Registro), d.LineaImporte[i], d.LineaCodigo[i]});
    }
}

double cotizacionEmpresarial(const EstadoNomina& Estado) {
    const CuotasParo& paro = Estado.cuotasParo;
    return Estado.cuotasCC.EmpresaCC + Estado.cuotasAT.TotalAT + paro.EmpresaParo + paro.EmpresaFP +
           paro.EmpresaFogasa;
}

void agrega(std::string texto, double importe, Recibo& recibo) {
    recibo.noSalariales.push_back({.texto = std::move(texto), .importe = importe});
    recibo.TotalDevengado += importe;
}

/// Holidays taken in excess are given back, with their tax.
void descuentaVacaciones(const EstadoNomina& Estado, Recibo& recibo) {
    recibo.VacacionesEnExceso = -Estado.finiquito.PPVacaciones;
    const double tributo = Redondeado(recibo.VacacionesEnExceso * Estado.devengos.TipoIRPF / 100, 2);
    recibo.IRPF += tributo;
    recibo.TotalADeducir += recibo.VacacionesEnExceso + tributo;
}

}  // namespace

std::string SituacionesEspeciales(const EstadoNomina& Estado, const RegistroNomina& Registro) {
    constexpr std::size_t kCasillas = 6;
    constexpr int kUltimaCategoriaMensual = 7;
    std::string codigos;
    if (Estado.dias.DiasHuelga != 0) codigos += '1';
    if (Estado.entradas.CoefPluriempleo != 1) codigos += '2';
    if (Estado.entradas.CoefDesempleo != 0) codigos += '3';
    if (Estado.dias.DiasPermiso != 0) codigos += '4';
    const bool mensual = Registro.UnidadConcepto.front().utf8() == "M";
    if (mensual && Registro.Categoria > kUltimaCategoriaMensual) codigos += '7';
    codigos.resize(kCasillas, ' ');
    return codigos;
}

double BaseRecaudacionConjunta(const EstadoNomina& Estado) {
    return Estado.entradas.tieneCuotasFijas() ? Estado.bases.BaseParo : Estado.bases.BaseParoSinMat;
}

Recibo PreparaRecibo(const EstadoNomina& Estado, const RegistroNomina& Registro) {
    Recibo recibo;
    repartePorGrupos(Estado, Registro, recibo);
    recibo.TotalDevengado = Estado.devengos.TotalDevengado;
    recibo.IRPF = Estado.devengos.RetencionIRPF;
    recibo.TotalADeducir = Estado.totales.TotalDeducir;
    const bool enExceso = Estado.finiquito.PPVacaciones < 0;
    if (Estado.entradas.Epigrafe == kRepresentantes) {
        agrega("Cotización Empresarial S.S.", cotizacionEmpresarial(Estado), recibo);
    }
    if (enExceso) agrega("P.P. Pagas Extras", Estado.devengos.PPExtras, recibo);
    if (enExceso) descuentaVacaciones(Estado, recibo);
    recibo.Liquido = recibo.TotalDevengado - recibo.TotalADeducir;
    return recibo;
}

}  // namespace orvemo::nomina
