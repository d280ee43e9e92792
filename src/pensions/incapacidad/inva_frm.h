#pragma once

#include <optional>
#include <string>
#include <vector>

#include "foundations/frame/asistente.h"
#include "pensions/comun/lineas_bases.h"
#include "pensions/comun/periodos_cotizados.h"
#include "pensions/comun/tablas_pensiones.h"
#include "pensions/incapacidad/incapacidad_base.h"
#include "pensions/incapacidad/incapacidad_registro.h"

namespace orvemo {

/// "INCAPACIDAD PERMANENTE": the person's data, the periods, the bases as a sum or month by month, and the
/// conclusions. Grade, cause and alta decide what is asked for.
class InvaFrm final : public AsistenteDe<incapacidad::RegistroIncapacidad, incapacidad::kDiseno> {
  public:
    explicit InvaFrm(Entorno& entorno);

    /// Builds the tables anew first. Throws FicheroInaccesible, FicheroMalFormado for a bad "ipc.txt".
    void Inicia() override;
    void LimpiaDatos() override;
    [[nodiscard]] bool ValidaPantalla() override;
    void ImprimeInforme(RutinasImpresion& rutinas) override;

    /// The monthly base of line i, from 1, the latest month.
    [[nodiscard]] Campo& InvaBase(int i) { return bases_.base(i); }
    /// Months of bases that the case needs; fits the lines to them.
    int InvaMinimoBases();

  protected:
    void trasCargar() override;
    void calcula(Dictamen& dictamen) override;
    [[nodiscard]] int pantallaSiguiente(int pantalla) const override;
    [[nodiscard]] int pantallaAnterior(int pantalla) const override;
    void dejaPantalla(int pantalla) override;

  private:
    // Panels. There is one for each frame of bases.
    static constexpr int kDatos = 0;
    static constexpr int kPeriodos = 1;
    static constexpr int kModoBases = 2;
    static constexpr int kPrimerMarco = 3;
    static constexpr int kMarcos = 2;
    static constexpr int kConclusiones = kPrimerMarco + kMarcos;

    Campo& nuevaLista(const char* nombre, const char* rotulo, std::span<const std::string_view> entradas);
    Campo& nuevasHoras(const char* nombre, const char* rotulo);
    void enlazaCampos();

    void ajustaVisibles();
    void calculaSalario();
    [[nodiscard]] incapacidad::Lecturas lecturas() const;
    [[nodiscard]] std::vector<int> recorrido() const;
    void imprimeMarcas(Informe& informe) const;
    void imprimeBases(Informe& informe) const;

  public:
    Campo& InvaNombre;
    Campo& InvaFechaNac;
    Campo& InvaFechaInv;
    Campo& InvaInvalidez;
    Campo& InvaCausa;
    Campo& InvaRegimen;
    Campo& InvaAltaSS;
    Campo& InvaConyuge;
    Campo& InvaPersona;
    Campo& InvaRecargo;
    Campo& InvaUltimaBase;
    Campo& InvaCalcularSalario;
    pensiones::PeriodosCotizados InvaFrmPer;
    Campo& HorasTP;
    Campo& HorasTP10;
    Campo& InvaBasesDesglosadas;
    Campo& InvaSumaBases;

  private:
    pensiones::LineasBases bases_;
    std::optional<pensiones::TablasPensiones> tablas_;
};

}  // namespace orvemo
