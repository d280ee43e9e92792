#pragma once

#include <QProxyStyle>

namespace orvemo {

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
    [[nodiscard]] QRect subElementRect(SubElement parte, const QStyleOption* opcion,
                                       const QWidget* widget) const override;
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

}  // namespace orvemo
