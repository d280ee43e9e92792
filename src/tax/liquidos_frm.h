#pragma once

#include "foundations/frame/formulario.h"
#include "tax/circunstancias.h"
#include "tax/familiares.h"
#include "tax/liquidos.h"

namespace orvemo {

/// "Conversión de Salarios Líquidos en Brutos": what is wanted in hand and the worker's circumstances on one
/// screen, the gross pay and a curve around it on the other. It saves no case and prints nothing.
class LiquidosFrm final : public Formulario {
  public:
    explicit LiquidosFrm(Entorno& entorno);

    void Inicia() override;
    /// Works out the gross pay and shows it. Throws Fallo, the first screen staying on view.
    void LiquidosCalcular();
    /// Takes the circumstances of a case of withholding to the fields.
    void carga(const irpf::DatosRetencion& datos);

  private:
    void ajusta();
    void MuestraPantalla(int n);
    [[nodiscard]] liquidos::DatosLiquidos tomaCampos();
    void muestraResultado(const liquidos::DatosLiquidos& datos, const liquidos::ResultadoLiquidos& resultado);
    [[nodiscard]] irpf::Declarador enPantalla(int pantalla);
    [[nodiscard]] Campo& resultado(const char* nombre, const char* rotulo);

    irpf::DatosRetencion persona_;
    Enlaces<irpf::DatosRetencion> enlaces_;

  public:
    Grupo& FrmSalario;
    Grupo& FrmPersona;
    Grupo& FrmFamilia;
    Campo& NomiCategoria;
    Campo& TipoContrato;
    Campo& LiquidosLiquido;
    Campo& LiquidosExtra;
    Campo& AnioNacimiento;
    irpf::Circunstancias circunstancias;
    irpf::Familiares familiares;
    Campo& LiquidosBruto;
    Campo& LiquidosAnual;
    Campo& Ret;
    Campo& iRet;
    Campo& IRetAnual;
    Campo& iSS;
    Campo& iLiq;
    Campo& Curva;
    Campo& Anterior;
    Campo& BotonCalcular;
    Campo& BotonExit;
};

}  // namespace orvemo
