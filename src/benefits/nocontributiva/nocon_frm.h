#pragma once

#include "benefits/nocontributiva/nocontributiva_registro.h"
#include "foundations/frame/asistente.h"

namespace orvemo {

/// "JUBILACIÓN E INVALIDEZ NO CONTRIBUTIVAS".
class NoConFrm final : public AsistenteDe<nocontributiva::RegistroNoContributiva, nocontributiva::kDiseno> {
  public:
    explicit NoConFrm(Entorno& entorno);

    void LimpiaDatos() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;

  protected:
    void calcula(Dictamen& dictamen) override;
    /// What can't be read fails aloud here.
    void preparaCaso() override { tomaCampos(); }
    [[nodiscard]] bool grabaDatosIncompletos() const override { return false; }

  public:
    Campo& Nombre;
    Campo& FechaNac;
    Campo& Estancia;
    Campo& NumMiembros;
    Campo& NumBenef;
    Campo& Renta;
    Campo& RenBene;
    Campo& RGlobal;
    Campo& Minusvalia;
    Campo& Convive;
};

}  // namespace orvemo
