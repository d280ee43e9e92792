#pragma once

#include "benefits/desempleo/desempleo_registro.h"
#include "foundations/frame/asistente.h"

namespace orvemo {

/// "PRESTACIONES DE DESEMPLEO": the applicant's data and the conclusions.
class DesempFrm final : public AsistenteDe<desempleo::RegistroDesempleo, desempleo::kDiseno> {
  public:
    explicit DesempFrm(Entorno& entorno);

    void ImprimeInforme(RutinasImpresion& rutinas) override;

  protected:
    void calcula(Dictamen& dictamen) override;

  public:
    Campo& Nombre;
    Campo& Edad;
    Campo& Fecha;
    Campo& fIni;
    Campo& Suma;
    Campo& Dias;
    Campo& Hijos;
    Campo& Parcial;
    Campo& Horas;
};

}  // namespace orvemo
