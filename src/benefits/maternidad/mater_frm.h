#pragma once

#include "benefits/maternidad/maternidad_registro.h"
#include "foundations/frame/asistente.h"

namespace orvemo {

/// "PRESTACION POR MATERNIDAD": the worker's data, with what her scheme asks for, and the conclusions.
class MaterFrm final : public AsistenteDe<maternidad::RegistroMaternidad, maternidad::kDiseno> {
  public:
    explicit MaterFrm(Entorno& entorno);

    void LimpiaDatos() override;
    [[nodiscard]] bool ValidaPantalla() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;

    /// Shows the bases that the scheme asks for, and hides the others.
    void AjustaRegimen();

  protected:
    void trasCargar() override { AjustaRegimen(); }
    void calcula(Dictamen& dictamen) override;

  public:
    Grupo& tp;
    Grupo& jtp;
    Campo& Nombre;
    Campo& Situacion;
    Campo& fAlta;
    Campo& f1;
    Campo& f2;
    Campo& Bccant;
    Campo& DM;
    Campo& B12;
    Campo& D12;
    Campo& jtpcnd;
    Campo& ftp;
    Campo& ptp;
};

}  // namespace orvemo
