#include "tax/liquidos.h"

#include <limits>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "payroll/grupos/grupos.h"
#include "tax/retenciones.h"

namespace orvemo::liquidos {

namespace {

// The worker's rates of 2005, as shares of the base.
constexpr double kComunes = 0.047;
constexpr double kDesempleoYFormacion = 0.0165;         // permanent contract
constexpr double kDesempleoYFormacionTemporal = 0.017;  // temporary contract
constexpr int kMeses = 12;

constexpr int kIndefinido = 0;
constexpr int kTemporal = 1;

std::uint8_t pagasCon(std::int32_t Extra) {
    return RedondeaPar8(double{kMeses} + Extra);
}

double AcotaBase(double valor, double minimo, double maximo) {
    if (valor >= maximo) return maximo;
    return valor <= minimo ? minimo : valor;
}

double cuota(const DatosLiquidos& datos, double BaseMensual, double desempleoYFormacion) {
    const double MinGrupo = grupos::MinimasComunes(datos.Grupo).mensual;
    const double MaxGrupo = grupos::MaximaComun(datos.Grupo);
    return kComunes * AcotaBase(BaseMensual, MinGrupo, MaxGrupo) +
           desempleoYFormacion *
               AcotaBase(BaseMensual, grupos::kMinimasProfesionales.mensual, grupos::kBaseMaxima);
}

double CuotaSS(const DatosLiquidos& datos, double Bruto) {
    const double BaseMensual = datos.Extra * Bruto / kMeses + Bruto;
    if (datos.TipoContrato == kIndefinido) return cuota(datos, BaseMensual, kDesempleoYFormacion);
    if (datos.TipoContrato == kTemporal) return cuota(datos, BaseMensual, kDesempleoYFormacionTemporal);
    return 0;
}

/// The person of the withholding, active and with nothing but the pay.
irpf::DatosRetencion PreparaRetencion(const DatosLiquidos& datos) {
    irpf::DatosRetencion persona = datos.persona;
    persona.Nombre.asigna("");
    persona.NIF.asigna("");
    persona.TipoContrato = static_cast<std::uint8_t>(datos.TipoContrato);
    persona.SituacionLaboral = 0;
    persona.Reducciones = persona.Gastos = 0;
    persona.Regularizacion = 0;
    persona.RetribucionAcumulada = persona.RetencionAcumulada = 0;
    persona.RetribucionInicial = persona.RetencionInicial = 0;
    persona.Rencemea = persona.TipoA = persona.Causa = 0;
    persona.BaseA = 0;
    return persona;
}

double tipoCon(irpf::DatosRetencion& persona, std::uint8_t Pagas, double Bruto) {
    persona.Retribuciones = Pagas * Bruto;
    return CalculaRetencion(persona).TipoRetencion;
}

/// Notices an amount that comes back. A turn depends on nothing but the amount before it, so from there on
/// the turns go round in circles.
class Ronda {
  public:
    /// How many of the turns left are whole rounds, once the amount of this turn has been seen before.
    int vueltasDeMas(int vuelta, double Bruto) {
        if (Bruto == hito_) {
            const int periodo = vuelta - vueltaDelHito_;
            return (kMaximoVueltas - vuelta) / periodo * periodo;
        }
        if (vuelta >= 2 * vueltaDelHito_) {
            hito_ = Bruto;
            vueltaDelHito_ = vuelta;
        }
        return 0;
    }

  private:
    double hito_ = std::numeric_limits<double>::quiet_NaN();
    int vueltaDelHito_ = 0;
};

}  // namespace

ResultadoLiquidos LiquidosCalcular(const DatosLiquidos& datos) {
    ResultadoLiquidos r{.Bruto = datos.Neto, .Pagas = pagasCon(datos.Extra)};
    irpf::DatosRetencion persona = PreparaRetencion(datos);
    std::string BrutoTexto = "0";
    Ronda ronda;
    while (r.vueltas < kMaximoVueltas) {
        ++r.vueltas;
        r.TipoRetencion = tipoCon(persona, r.Pagas, r.Bruto);
        r.CuotaSS = CuotaSS(datos, r.Bruto);
        r.Bruto = (datos.Neto + r.CuotaSS) / (1 - r.TipoRetencion / 100);
        if (LeeNumeroRegional(BrutoTexto) == r.Bruto) break;
        BrutoTexto = TextoPlano(r.Bruto);
        r.vueltas += ronda.vueltasDeMas(r.vueltas, r.Bruto);
    }
    return r;
}

double LiquidoDe(const DatosLiquidos& datos, double Bruto) {
    irpf::DatosRetencion persona = PreparaRetencion(datos);
    const double Tipo = tipoCon(persona, pagasCon(datos.Extra), Bruto);
    return Bruto - Tipo / 100 * Bruto - CuotaSS(datos, Bruto);
}

TextosLiquidos TextosDe(const ResultadoLiquidos& resultado) {
    constexpr const char* kImporte = "###,##0.00";
    const double Tipo = resultado.TipoRetencion;
    const int Pagas = resultado.Pagas;
    // Rounding nudges the gross pay, and what follows reads it so.
    double Bruto = resultado.Bruto;
    TextosLiquidos textos;
    textos.LiquidosBruto = FormatoNumero(Redondea(Bruto, 2), kImporte);
    textos.LiquidosAnual = FormatoNumero(Pagas * Bruto, kImporte);
    textos.Ret = FormatoNumero(Tipo, "##");
    textos.iRet = FormatoNumero(Redondeado(Tipo / 100 * Bruto, 2), kImporte);
    textos.IRetAnual = FormatoNumero(Redondeado(Tipo / 100 * Bruto * Pagas, 2), kImporte);
    textos.iSS = FormatoNumero(resultado.CuotaSS, kImporte);
    const double BrutoRedondo = Redondea(Bruto, 2);
    const double Retenido = Redondeado(Tipo / 100 * Bruto, 2);
    textos.iLiq = FormatoNumero(BrutoRedondo - Retenido - resultado.CuotaSS, kImporte);
    return textos;
}

}  // namespace orvemo::liquidos
