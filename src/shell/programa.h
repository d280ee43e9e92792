#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "foundations/frame/entorno.h"
#include "foundations/frame/formulario.h"
#include "shell/config_nom.h"
#include "shell/imagenes.h"
#include "shell/menu.h"

namespace orvemo {

inline constexpr const char* kFotoPortada = "portada.bmp";
/// How long the cover stays.
inline constexpr std::chrono::milliseconds kDuracionPortada{1000};
/// File whose mere presence opens the configuration screen.
inline constexpr const char* kFicheroNodo = "nodo.cue";

/// What the main screen asks of its renderer. The pictures are files of the application directory; one that
/// can't be shown throws FicheroInaccesible.
class VistaPrograma {
  public:
    virtual ~VistaPrograma() = default;

    /// Shows the cover, `Survey`, over the whole screen and comes back when its time is over. Neither key nor
    /// button ends it before.
    virtual void muestraPortada(const std::string& foto, std::chrono::milliseconds duracion) = 0;
    /// Loads the picture of the menu, `MenuFoto`, and centres it in its frame.
    virtual void cargaMenuFoto(const std::string& foto) = 0;
    /// Loads `LogoOrvemo` and gives what the reports need to print it.
    virtual Imagen cargaLogoOrvemo(const std::string& foto) = 0;
    /// Gives `Menu` its size and centres it in the window, as every change of size does.
    virtual void centraMenu() = 0;
    virtual void ponCaption(const std::string& caption) = 0;
    /// The mouse pointer of the main screen: hourglass or normal.
    virtual void cursorEspera(bool espera) = 0;
    /// Shows a screen, exactly over the menu or in a place of its own, until it hides itself.
    virtual void muestraModal(Formulario& pantalla, bool sobreElMenu) = 0;
    /// Unloads the main screen, which ends the program.
    virtual void descarga() = 0;
};

/// Creates a screen, not yet set up.
using Abridor = std::function<std::unique_ptr<Formulario>(Entorno&)>;
/// The screens that this program has, by the index of their option; an empty place has none.
using Pantallas = std::array<Abridor, kNumOpciones>;

/// An option as it stands in the menu. Where two share a place the later index covers the earlier.
struct OpcionMenu {
    Puesto puesto;
    bool visible = true;
    std::string texto;  ///< what a press reports instead of opening the screen; empty opens it
};

/// The main screen: the start of the program and its menu.
class Programa {
  public:
    Programa(Entorno& entorno, Pantallas pantallas, VistaPrograma& vista);

    /// The whole start-up; the main screen doesn't appear before it ends. Throws FicheroInaccesible when a
    /// picture is missing: the program can't start then.
    void Inicia();

    [[nodiscard]] const std::array<OpcionMenu, kNumOpciones>& opciones() const { return opciones_; }

    // --- Events. None of them throws: a failure is told in a box and the menu lives on.

    /// A press on the option of this index.
    void Opcion(int indice);
    /// A press on the logo: the configuration screen, if `nodo.cue` is there now.
    void LogoOrvemo();
    /// The main window is going, whether by its title bar or by the last option.
    void alDescargar();

  private:
    void cargaFotos();
    void ocultaOpciones();
    void leeConfiguracion();
    void aplicaTitulo(const RegistroConfig& registro);
    void aplicaOpcion(int indice, const RegistroConfig& registro);
    void abreOpcion(int indice);
    void abre(const Abridor& abridor, Apertura apertura);
    [[nodiscard]] std::unique_ptr<Formulario> preparada(const Abridor& abridor, bool espera);
    void fin();

    Entorno& entorno_;
    Pantallas pantallas_;
    VistaPrograma& vista_;
    std::array<OpcionMenu, kNumOpciones> opciones_;
};

}  // namespace orvemo
