#pragma once

#include <QLabel>
#include <string>

#include "toolkit/control.h"

namespace orvemo {

/// A picture, centred: grown with the screen, and shrunk where its panel leaves less room. On the bar it is
/// as large as the bar.
class ImagenCampo final : public QLabel, public Control {
  public:
    ImagenCampo(Campo& campo, Anfitrion& anfitrion);

    [[nodiscard]] QWidget& widget() override { return *this; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void refrescaValor() override;
    void resizeEvent(QResizeEvent* suceso) override;

  private:
    void encaja();

    QPixmap imagen_;
    std::string nombre_;
};

}  // namespace orvemo
