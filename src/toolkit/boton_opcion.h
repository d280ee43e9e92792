#pragma once

#include <QPushButton>

#include "shell/menu.h"

namespace orvemo {

/// An option of the menu. Its size is fixed, so its caption wraps and, should it need to, its letters shrink.
class BotonOpcion final : public QPushButton {
  public:
    BotonOpcion(const DefOpcion& def, int indice, QWidget* padre);

    [[nodiscard]] int indice() const { return indice_; }
    [[nodiscard]] Puesto puesto() const { return puesto_; }
    /// Moves it to its place in the menu.
    void ponPuesto(Puesto puesto);

  protected:
    void paintEvent(QPaintEvent* suceso) override;

  private:
    [[nodiscard]] QFont letraQueCabe(const QRect& sitio) const;

    int indice_;
    Puesto puesto_;
};

}  // namespace orvemo
