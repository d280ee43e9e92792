#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cases/archivo_supuestos.h"
#include "cases/registro.h"
#include "foundations/frame/enlaces.h"
#include "foundations/frame/formulario.h"

namespace orvemo {

/// What tells one calculator's frame from another's.
struct DefCalculadora {
    std::string titulo{};                   ///< heading of the screen
    std::string caption{};                  ///< caption of the window
    std::string fichero{};                  ///< case file
    int primerLibre{1};                     ///< records below are examples
    std::vector<std::string> subtitulos{};  ///< one per panel
    std::string campoNombre{"Nombre"};      ///< field with the person's name
    std::string prefijoBarra{};             ///< what the names of the bar's buttons begin with
};

/// A screen with panels, a bar of five buttons and one case record behind it. How its panels follow one
/// another, and where it calculates, is the derived screen's matter: most are an `Asistente`.
class Calculadora : public Formulario {
  public:
    Calculadora(Entorno& entorno, DefCalculadora def);

    /// Name of the case as last loaded or saved.
    [[nodiscard]] const std::string& NombreActual() const { return NombreActual_; }
    /// The person's name field.
    [[nodiscard]] Campo& campoNombre() { return campo(def_.campoNombre); }
    [[nodiscard]] const std::string& fichero() const { return def_.fichero; }
    /// Bytes of a record of the case file.
    [[nodiscard]] virtual std::size_t longitudRegistro() const = 0;
    [[nodiscard]] int ultimaPantalla() const { return numPantallas() - 1; }

    void Inicia() override;
    /// Asks whether the data of the case may go, when some were changed.
    [[nodiscard]] bool puedeDescartar() override;
    /// Sets every field and the name to its default.
    virtual void LimpiaDatos();
    /// Copies the fields to the case buffer. On a failed conversion says so, stops there and gives false.
    bool DatosTomaPantalla();
    /// Reads record r into the buffer and the screen and shows panel 0; r below 1 does nothing.
    void DatosCargaRegistro(int r);
    virtual void MuestraPantalla(int n);
    /// Goes on as the user would, panel after panel, to the one with the results; stops where a panel doesn't
    /// let pass.
    virtual void concluye() = 0;
    /// Figures of the last calculation for scripts, besides what stands on the panels: appends them to the
    /// members of an object of JSON, by AgregaCampoJson.
    virtual void agregaResultados(std::string& /*json*/) const {}
    void CargaCaso();
    void GrabaCaso();
    /// The results as people read them, where they aren't conclusions.
    [[nodiscard]] virtual std::string textoResultados() const { return {}; }
    /// The report, from what stands on the screen, to any target.
    virtual void ImprimeInforme(RutinasImpresion& rutinas) = 0;
    /// The printing flow: asks for a target, prints the report there, says how it ended.
    void imprime();
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
    /// Codec of the case buffer.
    [[nodiscard]] virtual std::string escribeCaso() const = 0;
    virtual void leeCaso(std::string_view bytes) = 0;
    /// The case's own name; a record without one takes it with its fields.
    virtual void ponNombreSupuesto(std::string_view nombre) = 0;
    [[nodiscard]] virtual std::string NombreSupuesto() const = 0;

    /// Whether a case whose fields can't all be read is saved with what was copied.
    [[nodiscard]] virtual bool grabaDatosIncompletos() const { return true; }
    [[nodiscard]] virtual std::string subtituloDe(int pantalla) const;
    /// After a load, once the fields are filled and before the panel shows.
    virtual void trasCargar() {}
    /// The whole document, its end included: the report, unless the calculator has forms of its own.
    virtual void escribeDocumento(DestinoImpresion& destino);
    /// What `BotonPrint` does.
    virtual void alImprimir() { imprime(); }

    [[nodiscard]] ArchivoSupuestos archivo() const;

  private:
    void nuevoCaso();
    void casoEnElTitulo(const std::string& nombre);
    void vuelveAlMenu();
    Campo& nuevoBoton(const std::string& nombre, std::string ayuda, void (Calculadora::*accion)(),
                      bool descarta = false);

    DefCalculadora def_;
    std::string NombreActual_;
    std::string motivoFallo_;  ///< why the last DatosGrabaRegistro wrote nothing

  public:
    // Controls of every calculator.
    Campo& BotonNuevo;
    Campo& BotonCarga;
    Campo& BotonGraba;
    Campo& BotonPrint;
    Campo& BotonExit;
};

/// A screen over the case buffer of a calculator, given its record and the layout of it.
template <typename Base, typename Registro, const auto& kDiseno>
class ConCaso : public Base {
  public:
    using Base::Base;
    using RegistroDelCaso = Registro;

    [[nodiscard]] static constexpr const auto& diseno() { return kDiseno; }
    [[nodiscard]] std::size_t longitudRegistro() const final { return kDiseno.longitud(); }
    [[nodiscard]] const Registro& caso() const { return caso_; }

  protected:
    [[nodiscard]] std::string escribeCaso() const final { return kDiseno.escribe(caso_); }
    void leeCaso(std::string_view bytes) final { kDiseno.lee(bytes, caso_); }
    void ponNombreSupuesto(std::string_view nombre) override {
        if constexpr (requires { caso_.NombreSupuesto; }) caso_.NombreSupuesto.asigna(nombre);
    }
    [[nodiscard]] std::string NombreSupuesto() const override {
        if constexpr (requires { caso_.NombreSupuesto; }) {
            return caso_.NombreSupuesto.utf8();
        } else {
            return caso_.Nombre.utf8();
        }
    }

    /// Ties a field to its member, or states a rule of its own: see Enlaces. In the order of the copy.
    void enlaza(auto&&... partes) { enlaces_.agrega(std::forward<decltype(partes)>(partes)...); }
    [[nodiscard]] Enlaces<Registro>& enlaces() { return enlaces_; }

    void tomaCampos() override { enlaces_.toma(caso_); }
    void cargaCampos() override { enlaces_.carga(caso_); }

    Registro caso_{};

  private:
    Enlaces<Registro> enlaces_;
};

template <typename Registro, const auto& kDiseno>
class CalculadoraDe : public ConCaso<Calculadora, Registro, kDiseno> {
    using ConCaso<Calculadora, Registro, kDiseno>::ConCaso;
};

}  // namespace orvemo
