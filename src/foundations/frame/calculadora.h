#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cases/archivo_supuestos.h"
#include "cases/registro.h"
#include "foundations/frame/formulario.h"
#include "foundations/values/dictamen.h"

namespace orvemo {

/// What tells one calculator's frame from another's.
struct DefCalculadora {
    std::string titulo;                   ///< heading of the screen
    std::string caption;                  ///< caption of the window
    std::string fichero;                  ///< case file
    int primerLibre = 1;                  ///< records below are examples
    std::vector<std::string> subtitulos;  ///< one per panel, the conclusions last
};

/// The wizard that every calculator is: panels of inputs, a last panel of conclusions, a bar of five buttons
/// and one case record behind them.
class Calculadora : public Formulario {
  public:
    Calculadora(Entorno& entorno, DefCalculadora def);

    /// The case gave a positive result.
    [[nodiscard]] bool ConDerecho() const { return ConDerecho_; }
    /// Name of the case as last loaded or saved.
    [[nodiscard]] const std::string& NombreActual() const { return NombreActual_; }
    /// The conclusions as they stand, line ends and report marks included.
    [[nodiscard]] const std::string& textoConclusion() const { return Conclusion.texto(); }
    /// The person's name field.
    [[nodiscard]] Campo& campoNombre() { return campo(nombreDelCampoNombre()); }
    [[nodiscard]] const std::string& fichero() const { return def_.fichero; }
    /// Bytes of a record of the case file.
    [[nodiscard]] virtual std::size_t longitudRegistro() const = 0;
    [[nodiscard]] int ultimaPantalla() const { return numPantallas() - 1; }

    void Inicia() override;
    /// Sets every field and the name to its default.
    virtual void LimpiaDatos();
    /// Copies the fields to the case buffer. On a failed conversion says so, stops there and gives false.
    bool DatosTomaPantalla();
    /// Reads record r into the buffer and the screen and shows panel 0; r below 1 does nothing.
    void DatosCargaRegistro(int r);
    /// Gate of `Siguiente`: speaks and puts the focus on the faulty field itself.
    [[nodiscard]] virtual bool ValidaPantalla() { return true; }
    void MuestraPantalla(int n);
    void ActualizaConclusion();
    void CargaCaso();
    void GrabaCaso();
    /// The report, from what stands on the screen, to any target.
    virtual void ImprimeInforme(RutinasImpresion& rutinas) = 0;
    /// Writes the buffer into the first free slot or at the end. Throws FicheroInaccesible.
    void DatosAppendRegistro();
    /// Writes the buffer over record r; with r = 0 over the record of its name. Says nothing: false when
    /// nothing was written.
    bool DatosGrabaRegistro(int r);

  protected:
    // --- What a calculator tells

    /// Fields to case buffer, in the record's order. Throws Fallo on a text that can't be read.
    virtual void tomaCampos() = 0;
    /// Case buffer to fields.
    virtual void cargaCampos() = 0;
    /// The calculation, on the case buffer.
    virtual void calcula(Dictamen& dictamen) = 0;
    /// Codec of the case buffer.
    [[nodiscard]] virtual std::string escribeCaso() const = 0;
    virtual void leeCaso(std::string_view bytes) = 0;
    virtual void ponNombreSupuesto(std::string_view nombre) = 0;
    [[nodiscard]] virtual std::string NombreSupuesto() const = 0;

    [[nodiscard]] virtual std::string nombreDelCampoNombre() const { return "Nombre"; }
    /// Whether `calcula` reads the fields itself, so that entering the conclusions doesn't copy them first.
    [[nodiscard]] virtual bool calculaDesdeCampos() const { return false; }
    /// Whether a case whose fields can't all be read is saved with what was copied.
    [[nodiscard]] virtual bool grabaDatosIncompletos() const { return true; }
    /// Panels that `Siguiente` and `Anterior` lead to.
    [[nodiscard]] virtual int pantallaSiguiente(int pantalla) const { return pantalla + 1; }
    [[nodiscard]] virtual int pantallaAnterior(int pantalla) const { return pantalla - 1; }
    /// What happens on the way out of a panel by `Siguiente`, its checks passed.
    virtual void dejaPantalla(int /*pantalla*/) {}
    [[nodiscard]] virtual std::string subtituloDe(int pantalla) const;
    /// After a load, once the fields are filled and before the panel shows.
    virtual void trasCargar() {}

    [[nodiscard]] ArchivoSupuestos archivo() const;

  public:
    // Controls of every calculator.
    Campo& BotonNuevo;
    Campo& BotonCarga;
    Campo& BotonGraba;
    Campo& BotonPrint;
    Campo& BotonExit;
    Campo& Anterior;
    Campo& Siguiente;
    Campo& Conclusion;
    Campo& Ok;
    Campo& Mal;

  private:
    void nuevoCaso();
    void avanza();
    void imprime();
    void ponVeredicto(const Dictamen& dictamen);

    DefCalculadora def_;
    std::string NombreActual_;
    std::string motivoFallo_;  ///< why the last DatosGrabaRegistro wrote nothing
    bool ConDerecho_ = false;
};

/// The case buffer of a calculator, given its record and the layout of it.
template <typename Registro, const auto& kDiseno>
class CalculadoraDe : public Calculadora {
  public:
    using Calculadora::Calculadora;

    [[nodiscard]] std::size_t longitudRegistro() const final { return kDiseno.longitud(); }
    [[nodiscard]] const Registro& caso() const { return caso_; }

  protected:
    [[nodiscard]] std::string escribeCaso() const final { return kDiseno.escribe(caso_); }
    void leeCaso(std::string_view bytes) final { kDiseno.lee(bytes, caso_); }
    void ponNombreSupuesto(std::string_view nombre) final { caso_.NombreSupuesto.asigna(nombre); }
    [[nodiscard]] std::string NombreSupuesto() const final { return caso_.NombreSupuesto.utf8(); }

    Registro caso_{};
};

}  // namespace orvemo
