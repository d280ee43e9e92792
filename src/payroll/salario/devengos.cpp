#include "payroll/salario/devengos.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/importes.h"
#include "payroll/caso/nomina_registro.h"
#include "payroll/conceptos/conceptos.h"
#include "payroll/dias/calendario.h"
#include "payroll/salario/proporcion.h"

namespace orvemo::nomina {
namespace {

/// A concept of the month. On an extra pay (`EsExtra`) its monthly amount is earned in `Proporcion`, and it
/// bears no contributions.
struct Concepto {
    std::string Codigo;
    double Importe;
    std::string Unidad;
    double Proporcion;
    bool EsExtra;

    [[nodiscard]] bool esHoraExtraFM() const { return Codigo == "HF" && !EsExtra; }
    [[nodiscard]] bool esOtraHoraExtra() const { return (Codigo == "HE" || Codigo == "HN") && !EsExtra; }
    [[nodiscard]] bool esAnticipo() const { return Codigo == "AN"; }
};

FlagsConcepto flagsDe(const Concepto& c) {
    const FlagsConcepto flags = FlagsDe(c.Codigo.starts_with('#') ? "PE" : c.Codigo);
    if (!c.EsExtra) return flags;
    return {.salarial = flags.salarial, .tributa = flags.tributa};
}

/// The days of the month on which the concept is paid.
int diasPagados(const FlagsConcepto& flags, const Dias& d) {
    Octeto dias = d.DiasTrabajados;
    if (!flags.sinPermiso) dias += d.DiasPermiso;
    if (!flags.sinBaja) dias += d.DiasBaja;
    return dias;
}

double mensual(const Concepto& c, const FlagsConcepto& flags, const EstadoNomina& Estado) {
    const Dias& d = Estado.dias;
    const double entero = (c.EsExtra ? c.Proporcion : 1) * c.Importe;
    if (c.EsExtra || d.DiasTrabajados == d.DiasMes) return entero;
    if (Estado.entradas.ContratoParcial && d.laborablesDeBaja() != 0)
        return d.DiasTrabajados * Cociente(entero, d.LabMes);
    const int dias = diasPagados(flags, d);
    return dias == d.DiasMes ? entero : dias * (entero / kDiasPorMes);
}

/// What the concept is worth in the month; nothing when no rule knows its letter.
std::optional<double> brutoDe(const Concepto& c, const FlagsConcepto& flags, const EstadoNomina& Estado) {
    const Dias& d = Estado.dias;
    if (c.esAnticipo()) return 0;
    if (c.Unidad == "M") return mensual(c, flags, Estado);
    if (c.Unidad == "D") return d.DiasTrabajados * c.Importe;
    // The days of leave stand in both counters.
    if (c.Unidad == "X") return (d.DiasCotizados + d.DiasBajaCotizados) * c.Importe;
    if (c.Unidad == "A") return c.Importe;
    if (c.Unidad == "E") return c.Importe * c.Proporcion;
    return std::nullopt;
}

/// Adds concepts to the receipt, one after another.
class Recibo {
  public:
    Recibo(const EstadoNomina& Estado, Devengos& devengos) : estado_{Estado}, devengos_{devengos} {}

    void AcumulaConcepto(Concepto c) {
        anotaHorasExtra(c);
        anotaEspecie(c);
        if (c.esAnticipo()) devengos_.Anticipos = Finito(devengos_.Anticipos + c.Importe);
        const FlagsConcepto flags = flagsDe(c);
        bruto_ = Centimos(brutoDe(c, flags, estado_).value_or(bruto_));
        if (flags.cotizaCC) devengos_.AcumBaseCC += bruto_;
        if (flags.cotizaAT) devengos_.AcumBaseAT += bruto_;
        reducePorDesempleo(c);
        if (bruto_ > 0) anotaLinea(c.Codigo, flags.salarial);
        if (flags.tributa) devengos_.BaseIRPF += bruto_;
    }

  private:
    /// Overtime is a single amount, whatever its period says.
    void anotaHorasExtra(Concepto& c) {
        if (c.esHoraExtraFM()) devengos_.HorasExtraFM += c.Importe;
        if (c.esOtraHoraExtra()) devengos_.HorasExtraResto += c.Importe;
        if (c.esHoraExtraFM() || c.esOtraHoraExtra()) c.Unidad = "A";
    }

    void anotaEspecie(const Concepto& c) {
        if (c.Codigo != "SP") return;
        devengos_.PagoEspecie = Finito(devengos_.PagoEspecie + c.Importe);
        devengos_.IngresoCuentaEspecie += Porcentaje(c.Importe, devengos_.TipoIRPF);
    }

    /// Partial unemployment cuts the pay and not the bases.
    void reducePorDesempleo(const Concepto& c) {
        const double coeficiente = estado_.entradas.CoefDesempleo;
        if (coeficiente != 0 && c.Unidad != "A") bruto_ = Centimos(bruto_ * (1 - coeficiente));
    }

    void anotaLinea(const std::string& Codigo, bool salarial) {
        Devengos& d = devengos_;
        const auto linea = static_cast<std::size_t>(d.NumLineas);
        if (linea == kLineas) throw DesbordeNumerico{kLineas + 1};
        d.LineaImporte.at(linea) = bruto_;
        d.LineaCodigo.at(linea) = Codigo;
        d.LineaSalarial.at(linea) = salarial;
        d.TotalDevengado += bruto_;
        ++d.NumLineas;
    }

    const EstadoNomina& estado_;
    Devengos& devengos_;
    /// What the last concept was worth: one with a letter that no rule knows is worth the same.
    double bruto_ = 0;
};

bool hayPagaExtra(const RegistroNomina& r) {
    const auto filas = r.UnidadConcepto.begin();
    return std::any_of(filas, filas + kConceptos, [](const auto& u) { return u.utf8() == "E"; });
}

double proporcion(const EstadoNomina& Estado, const RegistroNomina& r) {
    const Entradas& e = Estado.entradas;
    if (!e.esPagaExtra() && !hayPagaExtra(r)) return 1;
    return ProporcionExtra(LeeFecha(r.FechaExtra1.utf8()), LeeFecha(r.FechaExtra2.utf8()), e.FechaInicio,
                           FechaDeCese(e));
}

void acumulaConceptos(const EstadoNomina& Estado, const RegistroNomina& r, double Proporcion,
                      Recibo& recibo) {
    for (std::size_t i = 0; i < kConceptos; ++i)
        if (r.ImporteConcepto.at(i) > 0)
            recibo.AcumulaConcepto({r.CodigoConcepto.at(i).utf8(), r.ImporteConcepto.at(i),
                                    r.UnidadConcepto.at(i).utf8(), Proporcion,
                                    Estado.entradas.esPagaExtra()});
}

void acumulaPrestaciones(const EstadoNomina& Estado, double Proporcion, Recibo& recibo) {
    const Prestaciones& p = Estado.prestaciones;
    const bool EsExtra = Estado.entradas.esPagaExtra();
    if (p.PrestDP > 0) recibo.AcumulaConcepto({"DP", p.PrestDP, "A", Proporcion, EsExtra});
    if (p.PrestIT > 0) recibo.AcumulaConcepto({"IT", p.PrestIT, "A", Proporcion, EsExtra});
    if (p.PrestAT > 0) recibo.AcumulaConcepto({"AT", p.PrestAT, "A", Proporcion, EsExtra});
}

void acumulaIndemnizaciones(const Finiquito& f, Recibo& recibo) {
    if (f.IndExtincion > 0) recibo.AcumulaConcepto({"IE", f.IndExtincion, "A", 1, false});
    if (f.IndCompensacion > 0) recibo.AcumulaConcepto({"IC", f.IndCompensacion, "A", 1, false});
    if (f.IndPreaviso > 0) recibo.AcumulaConcepto({"IO", f.IndPreaviso, "A", 1, false});
}

double sumaExtras(const Finiquito& f) {
    double suma = 0;
    for (const double extra : f.ExtraFin) suma += Mayor(extra, 0.0);
    return suma;
}

}  // namespace

Devengos CalculaDevengos(const EstadoNomina& Estado, const RegistroNomina& Registro) {
    Devengos d;
    d.TipoIRPF = Registro.IRPFExtra;
    d.Proporcion = proporcion(Estado, Registro);
    Recibo recibo{Estado, d};
    acumulaConceptos(Estado, Registro, d.Proporcion, recibo);
    acumulaPrestaciones(Estado, d.Proporcion, recibo);
    d.PPExtras = sumaExtras(Estado.finiquito);
    acumulaIndemnizaciones(Estado.finiquito, recibo);
    d.RetencionIRPF = Porcentaje(d.TipoIRPF, d.BaseIRPF);
    return d;
}

}  // namespace orvemo::nomina
