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
    void tomaCampos() override;
    void cargaCampos() override;
    void calcula(Dictamen& dictamen) override;
    [[nodiscard]] bool calculaDesdeCampos() const override { return true; }
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
