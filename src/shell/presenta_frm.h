#pragma once

#include "foundations/frame/formulario.h"

namespace orvemo {

/// "Información del programa": three pictures that tell what the program is.
class PresentaFrm final : public Formulario {
  public:
    explicit PresentaFrm(Entorno& entorno);

    /// Throws FicheroInaccesible when the logo or the first picture is missing.
    void Inicia() override;

  private:
    Grupo& declaraOpciones();
    void pulsaOpcion(int i);

  public:
    Campo& PresentaBotonExit;
    Campo& LogoOrvemo;
    Grupo& PresenOpciones;
    Campo& PresenPan;
    Campo& EstudioLblTVX;
    Campo& Version;
};

}  // namespace orvemo
