#pragma once

#include "benefits/familiar/familiar_registro.h"
#include "foundations/frame/asistente.h"

namespace orvemo {

/// "PRESTACIONES FAMILIARES NO CONTRIBUTIVAS": dependent children or a birth, as the list at the top tells.
class FamiliarFrm final : public AsistenteDe<familiar::RegistroFamiliar, familiar::kDiseno> {
  public:
    explicit FamiliarFrm(Entorno& entorno);

    void LimpiaDatos() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;

  protected:
    void calcula(Dictamen& dictamen) override;
    void preparaCaso() override;
    [[nodiscard]] bool grabaDatosIncompletos() const override { return false; }
    [[nodiscard]] std::string subtituloDe(int pantalla) const override;

  private:
    void ajustaSupuestos();
    void compruebaHijosParto(Campo& campo);
    void compruebaTotalHijos(Campo& campo);
    [[nodiscard]] bool esNacimiento() const;

    familiar::RegistroFamiliar aLaVista_;  ///< the fields as the calculation reads them

  public:
    Grupo& HijosACargo;  ///< `Supuestos` 0
    Grupo& Nacimiento;   ///< `Supuestos` 1
    Campo& Nombre;
    Campo& Ayuda;
    Campo& Hijos;
    Campo& HMin1;
    Campo& HMin2;
    Campo& HMin3;
    Campo& Ingresos;
    Campo& HijosParto;
    Campo& TotalHijos;
    Campo& Ingresos2;
};

}  // namespace orvemo
