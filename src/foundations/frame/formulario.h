#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundations/frame/campo.h"
#include "foundations/frame/entorno.h"
#include "foundations/frame/vista.h"

namespace orvemo {

/// A screen without a toolkit: panels of fields, declared as data, and the rules of focus, leave checks and
/// reactions. A renderer shows it and passes the user's doings through the events below; tests call them too.
///
/// Fields are declared once, in tab order, by the derived screen's constructor, and live as long as the form.
class Formulario {
  public:
    explicit Formulario(Entorno& entorno);
    virtual ~Formulario() = default;
    Formulario(const Formulario&) = delete;
    Formulario& operator=(const Formulario&) = delete;

    /// Sets the screen up; called by the menu before showing it.
    virtual void Inicia() = 0;
    /// The user closes the window by its own means: it goes unless something would be lost that the user
    /// wants to keep.
    virtual void cierra() {
        if (puedeDescartar()) oculta();
    }
    /// Whether what was typed may go; asks if need be.
    [[nodiscard]] virtual bool puedeDescartar() { return true; }
    /// The user changed something since the form was set up, or what it holds was loaded or saved.
    [[nodiscard]] bool modificado() const { return modificado_; }

    // --- What the renderer reads

    [[nodiscard]] const std::deque<Campo>& campos() const { return campos_; }
    [[nodiscard]] std::deque<Campo>& campos() { return campos_; }
    [[nodiscard]] const std::deque<Grupo>& grupos() const { return grupos_; }
    [[nodiscard]] std::deque<Grupo>& grupos() { return grupos_; }
    [[nodiscard]] DefPanel panel(int pantalla) const;
    /// Heading within the screen.
    [[nodiscard]] const std::string& Titulo() const { return titulo_; }
    /// Caption of the window.
    [[nodiscard]] const std::string& Caption() const { return caption_; }
    [[nodiscard]] const std::string& Subtitulo() const { return subtitulo_; }
    [[nodiscard]] int PantallaActual() const { return PantallaActual_; }
    [[nodiscard]] int numPantallas() const { return numPantallas_; }
    [[nodiscard]] bool oculto() const { return oculto_; }
    /// The field that logically has the focus; null before the first.
    [[nodiscard]] const Campo* actual() const { return actual_; }
    [[nodiscard]] Campo& campo(std::string_view nombre, int indice = 0);
    /// On view now: visible and of the panel shown (or of the bar or the foot).
    [[nodiscard]] bool enPantalla(const Campo& campo) const;

    void ponVista(Vista* vista) { vista_ = vista; }

    // --- Events: what the user does
    //
    // None of them throws: a failure is told in a box and the form stays as it is.

    /// The focus moved to `destino`. The field left is checked first; if it fails, the focus goes back. True
    /// when `destino` has it now.
    bool foco(Campo& destino);
    /// A button was pressed. The field left is checked first (save by buttons that throw its value away); if
    /// it fails the press is lost. True when the button acted.
    bool pulsa(Campo& boton);
    /// The same by its keys, which are hit by mistake more easily: a button that throws what was typed away
    /// asks first.
    bool pulsaPorTeclas(Campo& boton);
    /// The text of a field is now this (typed, pasted or dictated); what the filter refuses is dropped.
    void escribe(Campo& campo, std::string_view texto);
    void marca(Campo& campo, bool marcado);
    void elige(Campo& campo, int indice);
    /// A day was picked in the calendar of a date field.
    void eligeFecha(Campo& campo, Fecha fecha);
    /// Double click or Enter on an open list.
    void doblePulsa(Campo& campo);
    /// A key on its way into a text field: the character to insert, 0 to swallow it.
    [[nodiscard]] char32_t teclea(const Campo& campo, char32_t tecla) const;

  protected:
    // --- Declaration

    Campo& nuevo(DefCampo def);
    Grupo& nuevoGrupo(DefGrupo def);
    void ponPanel(int pantalla, DefPanel def) { paneles_[pantalla] = def; }
    /// Check on leaving: `CompruebaRango` with these limits.
    [[nodiscard]] Reaccion rango(std::string minimo, std::string maximo);
    /// Check on leaving: `CompruebaFecha`.
    [[nodiscard]] Reaccion fechaCorrecta();
    /// Whether the typed field is a date; otherwise says so and asks for the focus there.
    [[nodiscard]] bool exigeFecha(Campo& fecha, std::string_view mensaje);
    void ponTitulos(std::string titulo, std::string caption);
    void ponSubtitulo(std::string subtitulo);
    void ponNumPantallas(int n) { numPantallas_ = n; }

    // --- State shared with the screens

    /// Shows a panel and hides the others; focus and calculations are the derived screen's matter.
    void muestra(int pantalla);
    /// Tells what is wrong with a field and takes the focus back to it; nothing when there is no reason.
    bool rechaza(Campo& campo, std::string_view motivo);
    /// Moves the focus without checking the field left; nothing happens if the field can't take it.
    void enfoca(Campo& campo);
    /// Moves the focus to the first field of the panel on view that can take it.
    void enfocaPrimero();
    void oculta();
    /// What stands on the form has been set up, loaded or saved just now.
    void daPorGuardado() { modificado_ = false; }
    /// Sets another screen up and shows it until it hides itself; without a renderer it comes back at once.
    void abreModal(Formulario& otra);
    /// Runs an operation; a failure is told in a box. False when it failed.
    bool protegido(const std::function<void()>& accion);

    [[nodiscard]] Entorno& entorno() const { return entorno_; }
    [[nodiscard]] Mensajes& mensajes() const { return entorno_.mensajes; }
    [[nodiscard]] Fecha hoy() const { return entorno_.reloj.hoy(); }
    [[nodiscard]] Vista* vista() const { return vista_; }

    bool Cargando = false;  ///< the program itself is setting fields: reactions are off
    bool DatoMal = false;   ///< a check has failed and the focus is being taken back

  private:
    friend class Bloque;
    friend class Campo;
    friend class Grupo;

    [[nodiscard]] bool dejaActual();
    [[nodiscard]] bool puedeTenerFoco(const Campo& campo) const;
    void comprueba(Campo& campo);
    [[nodiscard]] static bool esFechaLegible(const Campo& campo);
    void pideFoco(Campo& campo);
    void reacciona(Campo& campo);
    [[nodiscard]] std::string depura(const Campo& campo, std::string_view texto) const;

    Entorno& entorno_;
    Vista* vista_ = nullptr;
    std::deque<Campo> campos_;
    std::deque<Grupo> grupos_;
    std::map<int, DefPanel> paneles_;
    std::string titulo_, caption_, subtitulo_;
    int PantallaActual_ = 0;
    int numPantallas_ = 1;
    Campo* actual_ = nullptr;
    Campo* pedido_ = nullptr;
    bool comprobando_ = false;
    bool oculto_ = false;
    bool modificado_ = false;
};

/// What the fields and groups of a form hold and show at one moment, to go back to.
class Instantanea {
  public:
    explicit Instantanea(Formulario& formulario);
    /// Puts every field and group back as it was, without reactions.
    void restaura() const;

  private:
    struct EstadoGrupo {
        Grupo* grupo;
        std::string titulo;
        bool visible;
    };
    std::vector<std::pair<Campo*, Campo::Estado>> campos_;
    std::vector<EstadoGrupo> grupos_;
};

/// Raises `Cargando` while it lives and lowers it at the end, whatever happens in between.
class MientrasCarga {
  public:
    explicit MientrasCarga(bool& Cargando) : Cargando_{Cargando}, antes_{Cargando} { Cargando_ = true; }
    ~MientrasCarga() { Cargando_ = antes_; }
    MientrasCarga(const MientrasCarga&) = delete;
    MientrasCarga& operator=(const MientrasCarga&) = delete;

  private:
    bool& Cargando_;
    bool antes_;
};

}  // namespace orvemo
