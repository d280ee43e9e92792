#pragma once

#include <optional>
#include <string>

#include "foundations/frame/asistente.h"
#include "pensions/comun/lineas_bases.h"
#include "pensions/comun/pensiones.h"
#include "pensions/comun/periodos_cotizados.h"
#include "pensions/comun/tablas_pensiones.h"
#include "pensions/jubilacion/jubilacion_registro.h"

namespace orvemo {

/// "PENSIONES DE JUBILACIÓN": the person's data, the periods, the bases as a sum or month by month, and the
/// conclusions.
class PensionFrm final : public AsistenteDe<jubilacion::RegistroJubilacion, jubilacion::kDiseno> {
  public:
    explicit PensionFrm(Entorno& entorno);

    /// Builds the tables anew first. Throws FicheroInaccesible, FicheroMalFormado for a bad "ipc.txt".
    void Inicia() override;
    void LimpiaDatos() override;
    [[nodiscard]] bool ValidaPantalla() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;

    /// The monthly base of line i, from 1, the latest month.
    [[nodiscard]] Campo& JubiBase(int i) const { return bases.base(i); }

  protected:
    void trasCargar() override;
    void calcula(Dictamen& dictamen) override;
    [[nodiscard]] int pantallaSiguiente(int pantalla) const override;
    [[nodiscard]] int pantallaAnterior(int pantalla) const override;
    void dejaPantalla(int pantalla) override;
    [[nodiscard]] std::string subtituloDe(int pantalla) const override;

  private:
    // Panels. There is one for each frame of bases.
    static constexpr int kDatos = 0;
    static constexpr int kPeriodos = 1;
    static constexpr int kModoBases = 2;
    static constexpr int kPrimerMarco = 3;
    static constexpr int kMarcos = 5;
    static constexpr int kConclusiones = kPrimerMarco + kMarcos;

    Campo& nuevoNumero(std::string nombre, std::string rotulo, int pantalla);
    void enlazaCampos();
    void ajustaVisibles();
    void compruebaFechaJub();
    void compruebaImporte(Campo& campo, double maximo, std::string_view maximoEscrito);
    void PreparaBasesJubilacion();
    void preparaSerie();
    [[nodiscard]] int ultimoMarco() const;
    [[nodiscard]] bool esFuturo() const;
    void imprimeBases(Informe& informe) const;

  public:
    Campo& JubiNombre;
    Campo& JubiFechaNac;
    Campo& JubiFechaJub;
    Campo& JubiRegimen;
    Campo& JubiConyuge;
    Campo& JubiVoluntario;
    Campo& JubiNoImputable;
    Campo& JubiRedJor;
    Campo& JubiBaseActual;
    Campo& HorasTP;
    Campo& HorasTP15;
    pensiones::PeriodosCotizados periodos;
    Campo& JubiBasesDesglosadas;
    Campo& JubiSumaBases;
    pensiones::LineasBases bases;

  private:
    std::optional<pensiones::TablasPensiones> tablas_;
};

}  // namespace orvemo
