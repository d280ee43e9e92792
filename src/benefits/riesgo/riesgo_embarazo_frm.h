#pragma once

#include "benefits/riesgo/riesgo_embarazo_registro.h"
#include "foundations/frame/asistente.h"

namespace orvemo {

/// "RIESGO DURANTE EL EMBARAZO": the worker's data, with what scheme and dates ask for, and the conclusions.
class RiesgoEmbarazo final : public AsistenteDe<riesgo_embarazo::RegistroRiesgo, riesgo_embarazo::kDiseno> {
  public:
    explicit RiesgoEmbarazo(Entorno& entorno);

    void LimpiaDatos() override;
    [[nodiscard]] bool ValidaPantalla() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;

    /// Shows the fields that scheme and dates ask for, and hides the others.
    void AjustaRegimen();

  protected:
    void trasCargar() override { AjustaRegimen(); }
    void calcula(Dictamen& dictamen) override;

  public:
    Grupo& Sup1;
    Grupo& Sup3;
    Campo& Nombre;
    Campo& Situacion;
    Campo& fAlta;
    Campo& f1;
    Campo& f2;
    Campo& Bccant;
    Campo& DM;
    Campo& B12;
    Campo& D12;
    Campo& Bact;
    Campo& Extra;
    Campo& IExtra;
};

}  // namespace orvemo
