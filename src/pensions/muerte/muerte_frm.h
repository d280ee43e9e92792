#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundations/frame/asistente.h"
#include "pensions/comun/periodos_cotizados.h"
#include "pensions/muerte/muerte_registro.h"

namespace orvemo {

/// "Supuestos de Muerte - Orfandad - Ayudas a Familiares": the dead person's data, those who survive, the
/// periods when the right depends on them, and the conclusions.
class MuerteFrm final : public AsistenteDe<muerte::RegistroMuerte, muerte::kDiseno> {
  public:
    explicit MuerteFrm(Entorno& entorno);

    /// Throws FicheroInaccesible, FicheroMalFormado for a bad "ipc.txt", which every pension asks for.
    void Inicia() override;
    void LimpiaDatos() override;
    [[nodiscard]] bool ValidaPantalla() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;

  protected:
    void trasCargar() override { ajustaVisibles(); }
    void calcula(Dictamen& dictamen) override;
    [[nodiscard]] int pantallaSiguiente(int pantalla) const override;
    [[nodiscard]] int pantallaAnterior(int pantalla) const override;

  private:
    // Panels.
    static constexpr int kDatos = 0;
    static constexpr int kSupervivientes = 1;
    static constexpr int kPeriodos = 2;
    static constexpr int kConclusiones = 3;

    Campo& nuevasOpciones(const char* nombre, const char* rotulo, std::vector<std::string> entradas,
                          bool alLado);
    Campo& nuevaCuenta(const char* nombre, const char* rotulo, const char* defecto = "0");
    Campo& nuevaNota(const char* nombre, const char* ayuda, std::string_view nota);
    void enlazaCampos();

    void ajustaVisibles();
    [[nodiscard]] int situacion() const { return MuerteSituacion.indice() + 1; }
    [[nodiscard]] int causa() const { return MuerteCausa.indice() + 1; }
    [[nodiscard]] bool pidePeriodos() const;
    void imprimeSupervivientes(Informe& informe) const;

  public:
    Campo& MuerteNombre;
    Campo& MuerteFechaMuerte;
    Campo& MuerteFechaPension;
    Campo& MuerteSituacion;
    Campo& MuerteCausa;
    Campo& MuerteUltimaBase;
    Campo& MuerteDejaViuda;
    Campo& MuerteEdadViuda;
    Campo& MuerteVariosConyuges;
    Campo& MuerteHayCargas;
    Campo& MuerteHijos;
    Campo& Observaciones;
    Campo& MuerteFamiliares;
    Campo& Observacion2;
    Campo& MuerteFami2;
    pensiones::PeriodosCotizados MuerteFrmPer;
    Campo& HorasTP;
};

}  // namespace orvemo
