#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundations/values/comprobaciones.h"
#include "foundations/values/fechas.h"
#include "foundations/values/teclas.h"

namespace orvemo {

class Campo;
class Formulario;

/// What a field is; the renderer has one widget for each.
enum class Clase {
    Texto,          ///< one line of text, numbers included
    Resultado,      ///< read-only text or amount, right-aligned, its width fixed by `anchura`
    FechaSelector,  ///< date picker: never holds anything but a date once left
    FechaEscrita,   ///< typed date with a drop-down calendar; may be blank or bad
    Casilla,        ///< check box
    Lista,          ///< drop-down list
    Opciones,       ///< a list whose entries are long: each a radio button with its whole line
    ListaAbierta,   ///< list box
    TextoLargo,     ///< read-only text of several lines; the truth keeps its CR LF
    Etiqueta,       ///< a note or heading without a value
    Imagen,         ///< picture of the application directory, its bare name in the text
    Boton,
    Veredicto,  ///< the mark Ok or Mal
    Grafica,    ///< a line through points, one of them marked
};

/// What a text is made of: decides its key filter, unless it has its own, and how it is aligned.
enum class Contenido {
    Libre,
    Entero,   ///< digits
    Decimal,  ///< digits, one comma, a minus in front
};

/// Panels that aren't of the wizard: always on view.
inline constexpr int kBarra = -1;  ///< bar of the five buttons
inline constexpr int kPie = -2;    ///< `Anterior` and `Siguiente`

enum class Disposicion {
    Filas,     ///< label and field, one below the other
    Tabla,     ///< a grid of `columnas`, headings above, filled row by row
    Columnas,  ///< label and field pairs run down one column, then the next
};

/// How a panel as a whole is laid out.
struct DefPanel {
    bool denso{false};  ///< rows close together, for a panel with many fields
};

/// A frame of fields within a panel, shown and hidden as one.
struct DefGrupo {
    std::string nombre{};
    std::string titulo{};
    int pantalla{0};
    Disposicion disposicion{Disposicion::Filas};
    int columnas{1};
    std::vector<std::string> encabezados{};
    bool visible{true};
    bool alLado{false};  ///< stands at the right of the group declared before it
};

class Grupo {
  public:
    Grupo(Formulario& formulario, DefGrupo def);
    Grupo(const Grupo&) = delete;
    Grupo& operator=(const Grupo&) = delete;

    [[nodiscard]] const DefGrupo& def() const { return def_; }
    [[nodiscard]] bool visible() const { return visible_; }
    void ponVisible(bool visible);
    [[nodiscard]] const std::string& titulo() const { return titulo_; }
    void ponTitulo(std::string titulo);

  private:
    Formulario& formulario_;
    DefGrupo def_;
    bool visible_;
    std::string titulo_;
};

using Reaccion = std::function<void(Campo&)>;

struct PuntoGrafica {
    double x;
    double y;
    friend bool operator==(const PuntoGrafica&, const PuntoGrafica&) = default;
};

/// What a plot shows.
struct Grafica {
    std::vector<PuntoGrafica> puntos{};     ///< by their x, ascending
    std::optional<PuntoGrafica> marcado{};  ///< the one that it is all about
    std::string ejeX{};                     ///< caption of the axis
    std::string ejeY{};
    std::string descripcion{};  ///< the same in words, for who can't see it
    friend bool operator==(const Grafica&, const Grafica&) = default;
};

/// The declaration of a field, one line each in a calculator's screen.
struct DefCampo {
    std::string nombre{};  ///< as told; also its name for tests and accessibility scripts
    int indice{0};         ///< place in a control array, 0 when it is no member of one
    std::string rotulo{};  ///< label, caption of a button or check box
    Clase clase{Clase::Texto};
    int pantalla{0};
    Grupo* grupo{nullptr};
    std::string defecto{};  ///< text of a new case; a blank date picker takes today's date
    std::size_t largo{0};   ///< most characters, typed or set; 0 is no limit
    Contenido contenido{Contenido::Libre};
    FiltroTecla filtro{};   ///< of its own; otherwise its content's
    std::string formato{};  ///< pattern of the display while the field hasn't the focus
    std::vector<std::string> opciones{};
    Reaccion alSalir{};     ///< check on leaving
    Reaccion alCambiar{};   ///< marks and lists: changed by user or program, off while `Cargando`;
                            ///< dates: another one was picked or the field was left with another
    Reaccion alEscribir{};  ///< the user changed the text
    Reaccion alPulsar{};    ///< buttons; double click or Enter on an open list
    bool visible{true};
    std::string ayuda{};          ///< tip
    bool mismaLinea{false};       ///< stands on the row of the field before it
    bool sinComprobacion{false};  ///< buttons that run no leave check: what it would protect is thrown away
    int anchura{0};               ///< characters to show; 0 lets the kind decide
    bool pequeno{false};          ///< of a button: no larger than its text ("?"), beside a field
};

/// A field of a form: its declaration and its present state. Every change reaches the renderer.
class Campo final : public ControlTexto {
  public:
    /// What a field holds and shows at one moment.
    struct Estado {
        std::string texto{};
        std::string fechaAsentada{};  ///< of a date: its text when last settled
        std::vector<std::string> opciones{};
        std::vector<std::int64_t> datos{};  ///< of the entries, where they have them
        std::shared_ptr<const Grafica> grafica{};
        std::string rotulo{};
        std::function<std::string()> rotuloPendiente{};  ///< the caption, once somebody looks
        int indice{-1};
        int pantalla{0};
        bool marcado{false};
        bool visible{true};
        bool activo{true};
    };

    Campo(Formulario& formulario, DefCampo def);
    Campo(const Campo&) = delete;
    Campo& operator=(const Campo&) = delete;

    [[nodiscard]] const DefCampo& def() const { return def_; }
    [[nodiscard]] Formulario& formulario() const { return formulario_; }

    /// What every reading reads ("1234,56"); of a list, the text of the entry chosen.
    [[nodiscard]] const std::string& texto() const override { return estado_.texto; }
    void ponTexto(std::string texto) override;
    /// What the field shows while it hasn't the focus: its text by its pattern ("1.234,56").
    [[nodiscard]] std::string presentacion() const;

    [[nodiscard]] bool marcado() const { return estado_.marcado; }
    void ponMarcado(bool marcado);

    /// Entry chosen of a list, from 0; -1 for none.
    [[nodiscard]] int indice() const { return estado_.indice; }
    void ponIndice(int indice);
    [[nodiscard]] const std::vector<std::string>& opciones() const { return estado_.opciones; }
    /// Refills a list; the index is kept, lowered to the last entry if need be.
    void ponOpciones(std::vector<std::string> opciones);
    /// Fills a list anew, each entry with a datum, and chooses one. It reacts whatever stood there before.
    void rellena(std::vector<std::string> opciones, std::vector<std::int64_t> datos, int indice);
    /// Datum of the entry chosen; 0 without one.
    [[nodiscard]] std::int64_t dato() const { return dato(estado_.indice); }
    /// Datum of an entry; 0 without one.
    [[nodiscard]] std::int64_t dato(int indice) const;
    [[nodiscard]] const std::vector<std::int64_t>& datos() const { return estado_.datos; }

    [[nodiscard]] const Grafica& grafica() const;
    void ponGrafica(Grafica nueva);

    /// Its own switch and that of its group, whichever panel is on view.
    [[nodiscard]] bool visible() const;
    /// Its own switch alone.
    [[nodiscard]] bool visiblePropio() const { return estado_.visible; }
    void ponVisible(bool visible);
    [[nodiscard]] bool activo() const { return estado_.activo; }
    void ponActivo(bool activo);
    [[nodiscard]] const std::string& rotulo() const;
    void ponRotulo(std::string rotulo);
    /// The same, made when somebody looks at it.
    void ponRotulo(std::function<std::string()> rotulo);
    [[nodiscard]] int pantalla() const { return estado_.pantalla; }
    /// Moves the field to another panel; both are built anew.
    void ponPantalla(int pantalla);

    [[nodiscard]] const Estado& estado() const { return estado_; }
    /// Back to a state that it had, without reactions.
    void ponEstado(Estado estado);

    /// Back to the declared default: text, mark off, first entry of a list.
    void ponDefecto();
    void pideFoco() override;

    /// Whether it can take the focus at all.
    [[nodiscard]] bool enfocable() const;
    [[nodiscard]] bool esTexto() const;
    /// It has entries to choose from, however they are shown.
    [[nodiscard]] bool esLista() const;
    [[nodiscard]] bool esFecha() const;

  private:
    friend class Formulario;
    void refresca() const;
    /// True when it is another one than before.
    bool ponIndiceSinReaccion(int indice);
    /// Of a date on being left: rewritten as "dd-MM-yyyy" if it can be read. True when it tells another date
    /// than when last settled or set.
    bool asientaFecha();

    Formulario& formulario_;
    DefCampo def_;
    mutable Estado estado_;  ///< a caption to be made when looked at is made then
};

}  // namespace orvemo
