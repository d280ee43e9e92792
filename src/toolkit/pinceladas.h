#pragma once

#include <QColor>
#include <QRect>
#include <QStyleOption>

class QPainter;

namespace orvemo {

/// Name of the property that marks the one primary button of a screen.
inline constexpr const char* kPropiedadPrincipal = "principal";

/// Name of the property that makes the rows of a panel low.
inline constexpr const char* kPropiedadDenso = "denso";

/// Name of the property that makes a button no larger than its text.
inline constexpr const char* kPropiedadPequeno = "pequeno";

/// Twips between the ring of the focus and the check or radio button that has it.
inline constexpr int kAireFoco = 45;
/// Twips of a side of the square of a check box and of the ring of a radio button.
inline constexpr int kLadoMarca = 210;

/// A filled and framed shape with round corners.
struct Caja {
    QColor fondo;
    QColor borde;
    double grosor = 1;
};

void pintaCaja(QPainter& pincel, const QRect& sitio, const Caja& caja);
/// The one ring that tells where the keyboard is.
void pintaFoco(QPainter& pincel, const QRect& sitio);
/// Thickness of that ring.
[[nodiscard]] double grosorFoco();

// How a control looks in its present state.
[[nodiscard]] Caja cajaDeCampo(const QStyleOption& opcion);
[[nodiscard]] Caja cajaDeBotonPrincipal(const QStyleOption& opcion);
[[nodiscard]] Caja cajaDeBoton(const QStyleOption& opcion);
/// A button of the bar shows its shape only under the mouse, pressed or with the focus.
[[nodiscard]] Caja cajaDeBotonPlano(const QStyleOption& opcion);
/// One that can't be pressed looks like any other.
[[nodiscard]] bool esPrincipal(const QStyleOption& opcion, const QWidget* widget);

/// Icon and caption of a button, in the middle together.
void pintaRotulo(QPainter& pincel, const QStyleOptionButton& boton, bool principal);
/// The square of a check box and its tick.
void pintaCasilla(QPainter& pincel, const QStyleOption& opcion);
/// The ring of a radio button and its dot.
void pintaRedonda(QPainter& pincel, const QStyleOption& opcion);
/// A check box or radio button whole: its mark, drawn by `pintaMarca`, beside the first line of its caption,
/// and the ring of the focus around both.
void pintaMarcaConTexto(QPainter& pincel, const QStyleOptionButton& opcion,
                        void (*pintaMarca)(QPainter&, const QStyleOption&));
/// Its size, for a caption of that width at most.
[[nodiscard]] QSize tallaDeMarca(const QFontMetrics& letra, const QString& texto, int anchoMaximo);
/// The point of a list that drops down.
void pintaPuntaAbajo(QPainter& pincel, const QRect& sitio, bool activa);

}  // namespace orvemo
