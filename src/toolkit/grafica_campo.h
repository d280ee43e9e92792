#pragma once

#include <QWidget>

#include "toolkit/control.h"

namespace orvemo {

/// A plot: a line through points between two axes, one of them marked and brought down to both.
class GraficaCampo final : public QWidget, public Control {
  public:
    GraficaCampo(Campo& campo, Anfitrion& anfitrion);

    [[nodiscard]] QWidget& widget() override { return *this; }
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

  protected:
    void refrescaValor() override;
    void paintEvent(QPaintEvent* suceso) override;
};

}  // namespace orvemo
