#pragma once

#include "capital/capitalizacion/capitalizacion_registro.h"
#include "foundations/frame/asistente.h"

namespace orvemo {

/// "CAPITALIZACION DE PENSIONES": what cause and beneficiaries ask for, and the conclusions.
class CapitFrm final : public AsistenteDe<capital::RegistroCapital, capital::kDiseno> {
  public:
    explicit CapitFrm(Entorno& entorno);

    void LimpiaDatos() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;
    void agregaResultados(std::string& json) const override;

    /// Shows the fields that cause and beneficiaries ask for, under the captions that they then have.
    void AjustaPantalla();

  protected:
    void trasCargar() override { AjustaPantalla(); }
    void preparaCaso() override;
    void calcula(Dictamen& dictamen) override;

  private:
    [[nodiscard]] bool esMuerte() const;

    double CapitalCoste_ = 0;  ///< of the last calculation, euros

  public:
    Campo& Nombre;
    Campo& Situacion;
    Campo& Papel;
    Campo& Capital;
    Campo& Dias1;
    Campo& Dias2;
    Campo& fConce;
    Campo& fCapi;
    Campo& Edad;
    Campo& EdadB;
    Campo& Edad1;
    Campo& Edad2;
    Campo& Edad3;
};

}  // namespace orvemo
