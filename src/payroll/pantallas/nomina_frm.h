#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundations/frame/calculadora.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/nomina_registro.h"
#include "payroll/caso/opciones_impresion.h"
#include "payroll/recibo/recibo.h"
#include "payroll/validaciones/adicionales.h"
#include "payroll/validaciones/fechas_nomina.h"

namespace orvemo {

/// "SUPUESTOS DE NÓMINAS Y SEGUROS SOCIALES": the contract and the month, what a leave and a settlement need
/// besides, the receipt and the figures of the contribution forms.
class NominaFrm final : public CalculadoraDe<nomina::RegistroNomina, nomina::kDiseno> {
  public:
    explicit NominaFrm(Entorno& entorno);

    /// Reads the lists of contracts and epigraphs and the company's data. Throws FicheroInaccesible,
    /// FicheroMalFormado.
    void Inicia() override;
    void LimpiaDatos() override;
    /// Computes the case as it was loaded and shows its receipt, whatever panels would come between.
    void concluye() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;
    void agregaResultados(std::string& json) const override;
    [[nodiscard]] std::string textoResultados() const override;

    [[nodiscard]] const nomina::EstadoNomina& Estado() const { return estado_; }

  protected:
    void cargaCampos() override;
    void alImprimir() override;
    /// Receipt and contribution form, or the one that the user asked for.
    void escribeDocumento(DestinoImpresion& destino) override;

  private:
    struct FilaConcepto {
        Campo &codigo, &texto, &importe, &periodo;
    };
    struct FilaIncidencia {
        Campo &codigo, &texto, &dia1, &dia2;
    };

    // --- Declaration
    void declaraContrato();
    void declaraPagas();
    void declaraConceptos();
    void calculaIRPF();
    void convierteLiquidos();
    void declaraIncidencias();
    void declaraExtraYParcial();
    void declaraBaja();
    void declaraFiniquito();
    void declaraExtrasFin();
    void declaraPeriodo(std::pair<const char*, const char*> nombres, Grupo& grupo, int indice);
    void declaraRecibo();
    void declaraCotizacion();
    void declaraTotales();
    void declaraLineas(DefGrupo def, const char* texto, const char* euros, int sitio);
    void declaraFormularios();
    void declaraSalida();
    void declaraAyudas();
    void enlazaContrato();
    void enlazaFilas();
    void enlazaAdicionales();
    void enlazaFiniquito();
    void enlazaCasilla(Campo& casilla, std::int16_t nomina::RegistroNomina::*miembro);
    [[nodiscard]] std::vector<Campo*> serie(std::string_view nombre);
    Campo& numero(std::string nombre, std::string rotulo, DefCampo sitio);
    Campo& fecha(std::string nombre, std::string rotulo, DefCampo sitio);
    void cifra(std::string nombre, std::string rotulo, Grupo& grupo, int indice = 0, int anchura = 14);
    void cifraAlLado(std::string nombre, std::string rotulo, Grupo& grupo, int indice, int anchura);
    Campo& boton(std::string nombre, std::string rotulo, int pantalla, void (NominaFrm::*accion)());
    /// The pair that leaves a panel of results.
    void botonesDe(int pantalla, const char* anterior, const char* siguiente);

    // --- Checks and reactions
    void aplica(Campo& campo, const nomina::Revision& revision);
    void dejaConcepto(FilaConcepto fila);
    void dejaIncidencia(FilaIncidencia fila);
    void proponePeriodo(FilaConcepto fila, char Periodicidad);
    void compruebaImporte(FilaConcepto fila);
    void compruebaDia1(FilaIncidencia fila);
    void muestraAyuda(int pantalla, Campo& destino);
    void copiaCodigo(Campo& lista, std::size_t ancho);
    void cierraAyuda();
    void cambiaGrupoContrato();
    void ajustaCamposContrato();
    void avisaExtras();
    void cambiaCategoria();
    void rotulaPagas();
    void proponeCese();

    void cargaContrato(const std::string& Codigo);
    void ajustaFilas();
    void cargaConcepto(FilaConcepto fila);
    void cargaIncidencia(FilaIncidencia fila);

    // --- What stands on the screen
    [[nodiscard]] FilaConcepto concepto(int i);
    [[nodiscard]] FilaIncidencia incidencia(int i);
    [[nodiscard]] int mes();
    [[nodiscard]] bool cobraPorDias();
    [[nodiscard]] std::int32_t IndiceContrato();
    [[nodiscard]] std::string CodigoContrato();
    [[nodiscard]] bool hayIncidencia(std::string_view codigos);
    [[nodiscard]] bool hayPeriodo(std::string_view letra);
    [[nodiscard]] bool hayDesempleoParcial();

    // --- Road among the panels
    [[nodiscard]] bool NecesitaExtra();
    [[nodiscard]] bool NecesitaBaja();
    [[nodiscard]] bool NecesitaParcial();
    [[nodiscard]] bool NecesitaModo();
    [[nodiscard]] bool NecesitaFiniquito();
    void preparaAdicionales();
    void AjustaCaptions();
    void dejaContrato();
    void dejaAdicionales();
    void calculaOFiniquito();
    void vuelveDelFiniquito();
    [[nodiscard]] bool necesitaAdicionales();
    [[nodiscard]] bool CompruebaAdicionales();
    void CalculaSupuesto();

    // --- Results
    void calculaYMuestra();
    void MuestraRecibo();
    void MuestraAportaciones();
    void MuestraTC2();
    void MuestraTC1();
    void MuestraTC13();
    void pon(std::string_view nombre, double euros, int indice = 0);
    void ponLineas(const std::vector<nomina::LineaRecibo>& lineas, const char* texto, const char* euros,
                   int sitio);

    // --- Printing
    void cargaOpciones();
    [[nodiscard]] nomina::OpcionesImpresion opcionesDeLaPantalla();
    void ImpresionImprime();

    nomina::TablasNomina tablas_;
    nomina::EstadoNomina estado_;
    std::vector<std::string> listaConceptos_, listaIncidencias_;
    bool conTC2_ = true;  ///< what the next document holds
    bool conRecibo_ = true;
    Grupo* grupoExtra_ = nullptr;    ///< period of the extra pay
    Grupo* grupoBaja_ = nullptr;     ///< what a leave needs
    Campo* destinoAyuda_ = nullptr;  ///< field that an open help list fills
};

}  // namespace orvemo
