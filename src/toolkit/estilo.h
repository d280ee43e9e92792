#pragma once

#include <QProxyStyle>

class QApplication;

namespace orvemo {

/// Name of the property that marks the one primary button of a screen.
inline constexpr const char* kPropiedadPrincipal = "principal";

/// The look of the whole program: Fusion's behaviour with flat, quiet controls in the program's own colours.
class Estilo final : public QProxyStyle {
  public:
    Estilo();

    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pincel,
                       const QWidget* widget) const override;
    void drawControl(ControlElement elemento, const QStyleOption* opcion, QPainter* pincel,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* opcion, QPainter* pincel,
                            const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* opcion,
                                       SubControl parte, const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric medida, const QStyleOption* opcion,
                                  const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType clase, const QStyleOption* opcion,
                                         const QSize& contenido, const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint rasgo, const QStyleOption* opcion, const QWidget* widget,
                                QStyleHintReturn* vuelta) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap dibujo, const QStyleOption* opcion,
                                     const QWidget* widget) const override;
    [[nodiscard]] QPalette standardPalette() const override;
};

/// Gives the application its style, palette, letters and scale, all by the screen at hand.
void instalaEstilo(QApplication& aplicacion);
/// The same for a screen of this size, in logical pixels.
void instalaEstilo(QApplication& aplicacion, QSize pantalla);

}  // namespace orvemo
