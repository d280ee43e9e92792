#pragma once

#include <QCheckBox>

#include "toolkit/control.h"

namespace orvemo {

/// A check box whose caption goes on in another line where it is long.
class CasillaCampo final : public QCheckBox, public Control {
  public:
    CasillaCampo(Campo& campo, Anfitrion& anfitrion);

    [[nodiscard]] QWidget& widget() override { return *this; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void refrescaValor() override;
    void paintEvent(QPaintEvent* suceso) override;
    [[nodiscard]] bool hitButton(const QPoint& punto) const override { return rect().contains(punto); }

  private:
    [[nodiscard]] int anchoMaximo() const;
};

}  // namespace orvemo
