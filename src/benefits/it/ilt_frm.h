#pragma once

#include "benefits/it/incapacidad_temporal_registro.h"
#include "foundations/frame/asistente.h"

namespace orvemo {

/// "INCAPACIDAD TEMPORAL": the applicant's data, with what scheme, cause and dates ask for, and the
/// conclusions.
class ILTFrm final
    : public AsistenteDe<incapacidad_temporal::RegistroIncapacidad, incapacidad_temporal::kDiseno> {
  public:
    explicit ILTFrm(Entorno& entorno);

    void Inicia() override;
    void LimpiaDatos() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;

    /// Shows the fields that scheme, cause and dates ask for, and hides the others.
    void AjustaPantalla();

  protected:
    void trasCargar() override { AjustaPantalla(); }
    void preparaCaso() override;
    void calcula(Dictamen& dictamen) override;

  private:
    void cambiaSituacion();
    void llenaTBaja();
    void compruebaHe();

  public:
    Grupo& Sup1;
    Grupo& Sup2;
    Grupo& Sup3;
    Campo& Nombre;
    Campo& Situacion;
    Campo& fAlta;
    Campo& TBaja;
    Campo& DM;
    Campo& f1;
    Campo& f2;
    Campo& Bccant;
    Campo& Batant;
    Campo& He;
    Campo& He12;
    Campo& Prev;
    Campo& Bact;
    Campo& Extra;
    Campo& IExtra;
    Campo& B12;
    Campo& D12;
    Campo& HorasAno;
    Campo& DSem;
};

}  // namespace orvemo
