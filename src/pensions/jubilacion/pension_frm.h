#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundations/frame/asistente.h"
#include "pensions/comun/pensiones.h"
#include "pensions/comun/tablas_pensiones.h"
#include "pensions/jubilacion/jubilacion_base.h"
#include "pensions/jubilacion/jubilacion_registro.h"

namespace orvemo {

class Informe;

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
    [[nodiscard]] Campo& JubiBase(int i) { return *bases_[static_cast<std::size_t>(i - 1)]; }
    [[nodiscard]] const Campo& JubiBase(int i) const { return *bases_[static_cast<std::size_t>(i - 1)]; }
    /// The series of bases as last prepared.
    [[nodiscard]] const pensiones::SerieBases& serie() const { return serie_; }

  protected:
    void tomaCampos() override;
    void cargaCampos() override;
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

    static constexpr const char* kFormatoBase = "###,##0.00";
    static constexpr const char* kTextoImporte = "#0.00";  ///< as amounts are read: no thousands marks

    struct FilaPeriodo {
        Campo& JubiPerDesde;
        Campo& JubiPerHasta;
        Campo& JubiPerEmpresa;
    };

    // --- Declaration
    FilaPeriodo nuevaFila(Grupo& grupo, int fila);
    Campo& nuevasHoras(std::string nombre, std::string rotulo);
    std::vector<FilaPeriodo> nuevasFilas();
    std::vector<Campo*> nuevasBases();

    // --- Reactions
    void ajustaVisibles();
    void compruebaFechaJub();
    void compruebaImporte(Campo& campo, double maximo, std::string_view maximoEscrito);
    bool rechaza(Campo& campo, std::string_view motivo);
    void dejaBase(int i);

    // --- Series of bases
    void PreparaBasesJubilacion();
    void preparaSerie();
    void proyectaBases();
    [[nodiscard]] std::string rotuloDeBase(int i) const;
    [[nodiscard]] int anioDeBase(int i) const;
    [[nodiscard]] jubilacion::UltimosDias ultimosDias() const;

    void tomaPeriodos();
    void cargaPeriodos();
    void imprimeBases(Informe& informe) const;

  public:
    Campo& JubiNombre;
    Campo& JubiFechaNac;
    Campo& JubiFechaJub;
    Campo& JubiRegimen;
    Campo& JubiRedJor;
    Campo& JubiConyuge;
    Campo& JubiVoluntario;
    Campo& JubiNoImputable;
    Campo& JubiBaseActual;
    std::vector<FilaPeriodo> periodos;
    Campo& HorasTP;
    Campo& HorasTP15;
    Campo& JubiBasesDesglosadas;
    Campo& JubiSumaBases;

  private:
    std::vector<Campo*> bases_;
    std::optional<pensiones::TablasPensiones> tablas_;
    pensiones::SerieBases serie_{};
    Fecha referencia_{};
    double baseActualProyectada_ = 0;  ///< `JubiBaseActual` when the bases were last prepared
    bool BaseEditada_ = false;         ///< a line was typed in since the last copy forward
};

}  // namespace orvemo
