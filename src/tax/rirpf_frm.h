#pragma once

#include <optional>

#include "foundations/frame/asistente.h"
#include "tax/circunstancias.h"
#include "tax/familiares.h"
#include "tax/retenciones.h"

namespace orvemo {

/// "Retenciones del Trabajo Personal a cuenta del IRPF": the taxpayer, the dependants, the regularisation and
/// the conclusions. The payroll opens it too, for the percentage that it works out.
class RetIrpfFrm final : public AsistenteDe<irpf::DatosRetencion, irpf::kDiseno> {
  public:
    explicit RetIrpfFrm(Entorno& entorno);

    /// What the last calculation found out; nothing before the first, or when it failed.
    [[nodiscard]] const std::optional<irpf::ResultadoRetencion>& resultado() const { return resultado_; }

    void LimpiaDatos() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;
    void agregaResultados(std::string& json) const override;

  protected:
    void trasCargar() override { ajusta(); }
    void calcula(Dictamen& dictamen) override;

  private:
    void ajusta();
    [[nodiscard]] irpf::Declarador enPantalla(int pantalla);
    [[nodiscard]] Campo& importe(const char* nombre, const char* rotulo, Grupo& grupo,
                                 const char* defecto = "0");
    void enlazaCampos();

    std::optional<irpf::ResultadoRetencion> resultado_;

  public:
    Grupo& FrmPersona;
    Grupo& FrmImportes;
    Grupo& FrmFamilia;
    Campo& Nombre;
    Campo& NIF;
    Campo& AnioNacimiento;
    Campo& TipoContrato;
    Campo& SituacionLaboral;
    Campo& Retribuciones;
    Campo& Reducciones;
    Campo& Gastos;
    irpf::Circunstancias circunstancias;
    Campo& NIFConyuge;
    irpf::Familiares familiares;
    Campo& Regularizacion;
    Grupo& FrmRegularizacion;
    Campo& Causa;
    Campo& Rencemea;
    Campo& RetribucionInicial;
    Campo& RetencionInicial;
    Campo& RetribucionAcumulada;
    Campo& RetencionAcumulada;
    Campo& BaseA;
    Campo& TipoA;
};

}  // namespace orvemo
