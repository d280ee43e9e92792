#include "foundations/values/numeros.h"
#include "tax/pasos_retencion.h"

namespace orvemo::irpf {

namespace {

// Percentages that short contracts and special relations of Ceuta and Melilla keep once the rate is capped.
constexpr double kTipoMinimoCortoCeuta = 1;
constexpr double kTipoMinimoEspecialCeuta = 8;

// Causes, counted from 1.
constexpr int kCambioDeSituacionFamiliar = 11;
constexpr int kDejaDeResidirEnCeuta = 12;
constexpr int kPasaAResidirEnCeuta = 13;
constexpr int kEmpiezaFueraDeCeuta = 14;
constexpr int kOtrasCausas = 15;

/// One regularisation under way, with the short names that its rules use.
class Regularizacion {
  public:
    Regularizacion(const DatosRetencion& datos, ResultadoRetencion& r)
        : datos_{datos},
          r_{r},
          Causa{datos.Causa + 1},
          A{datos.RetribucionAcumulada},
          Z{datos.RetencionAcumulada},
          R{datos.Retribuciones} {}

    void calcula() {
        reparteLoQueFalta();
        if (admiteCualquierSubida()) return;
        limitaLaSubida();
        if (r_.LimitaTipo == "S") respetaMinimos();
    }

  private:
    [[nodiscard]] bool enCeuta() const { return datos_.CeutaMelilla == 1; }

    /// What was borne in Ceuta or Melilla was borne at half the rate.
    [[nodiscard]] bool Dobla() const {
        if (datos_.Rencemea != 1) return false;
        return enCeuta() ? Causa != kPasaAResidirEnCeuta : Causa == kEmpiezaFueraDeCeuta;
    }

    [[nodiscard]] bool admiteCualquierSubida() const {
        return Causa == kCambioDeSituacionFamiliar || Causa == kDejaDeResidirEnCeuta ||
               Causa == kEmpiezaFueraDeCeuta || Causa == kOtrasCausas;
    }

    /// The percentage that brings what is left of the pay to the withholding of the year.
    [[nodiscard]] double tipoRestante(double retenido) const {
        return Cociente(r_.ImporteRetencion - retenido, R - A) * 100;
    }

    [[nodiscard]] double importeCon(double tipo) const { return (R - A) * tipo / 100 + Z; }

    void reparteLoQueFalta() {
        const double retenido = Dobla() ? Z * 2 : Z;
        const double restante = tipoRestante(retenido);
        double Rate = LimitaPorContrato(TruncaDos(restante < 0 ? 0 : restante), datos_);
        if (enCeuta()) Rate = Rate / 2;
        r_.TipoRetencion = TipoFinal(Rate);
        r_.ImporteRetencion = Redondeado(importeCon(r_.TipoRetencion), 2);
    }

    void limitaLaSubida() {
        if (datos_.BaseA >= r_.BaseRetencion && r_.TipoRetencion > datos_.TipoA) {
            r_.TipoRetencion = datos_.TipoA;
            r_.LimitaTipo = "S";
        } else if (datos_.BaseA < r_.BaseRetencion && datos_.RetencionInicial < r_.ImporteRetencion) {
            limitaALaSubidaDeLaBase();
        }
    }

    /// The withholding may not grow by more than the base has grown.
    void limitaALaSubidaDeLaBase() {
        const double Margen = r_.BaseRetencion - datos_.BaseA;
        if (!(r_.ImporteRetencion - datos_.RetencionInicial > Margen)) return;
        r_.LimitaTipo = "S";
        r_.ImporteRetencion = Margen + datos_.RetencionInicial;
        const double Rate = tipoRestante(Z);
        if (Rate < 0) {
            r_.TipoRetencion = 0;
            return;
        }
        r_.TipoRetencion = TipoFinal(TruncaDos(Rate));
        r_.ImporteRetencion = importeCon(r_.TipoRetencion);
        const double Subida = r_.ImporteRetencion - datos_.RetencionInicial;
        if (r_.TipoRetencion > 0 && Subida > Margen) r_.TipoRetencion = r_.TipoRetencion - 1;
    }

    /// Runs for every regularisation after the first that was capped.
    void respetaMinimos() {
        double minimo = r_.TipoRetencion;
        if (datos_.TipoContrato == kRelacionEspecial) {
            minimo = enCeuta() ? kTipoMinimoEspecialCeuta : kTipoMinimoEspecial;
        } else if (datos_.TipoContrato == kContratoCorto) {
            minimo = enCeuta() ? kTipoMinimoCortoCeuta : kTipoMinimoCorto;
        }
        if (r_.TipoRetencion < minimo) r_.TipoRetencion = minimo;
        r_.ImporteRetencion = Redondeado(importeCon(r_.TipoRetencion), 2);
    }

    const DatosRetencion& datos_;
    ResultadoRetencion& r_;
    const int Causa;
    const double A, Z, R;
};

}  // namespace

void Regulariza(const DatosRetencion& datos, ResultadoRetencion& r) {
    Regularizacion{datos, r}.calcula();
}

}  // namespace orvemo::irpf
