#pragma once

#include <QAbstractButton>

namespace orvemo {

/// The logo of the menu: a picture that can be pressed, and reached with the keyboard where a press does
/// something.
class BotonLogo final : public QAbstractButton {
  public:
    explicit BotonLogo(QWidget* padre);

    void ponImagen(const QPixmap& imagen);
    /// Whether Tab comes to it.
    void ponAlcanzable(bool alcanzable);

  protected:
    void paintEvent(QPaintEvent* suceso) override;

  private:
    QPixmap imagen_;
};

}  // namespace orvemo
