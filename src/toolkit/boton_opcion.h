#pragma once

#include <QPushButton>

#include "shell/menu.h"

namespace orvemo {

/// An option of the menu. Its size is fixed, so its caption wraps and, should it need to, its letters
/// shrink.
class BotonOpcion final : public QPushButton {
  public:
    BotonOpcion(const DefOpcion& def, int indice, QWidget* padre);

    [[nodiscard]] int indice() const { return indice_; }
    [[nodiscard]] Puesto puesto() const { return puesto_; }
    /// Moves it to its place in the menu, at that height in twips.
    void ponPuesto(Puesto puesto, int top);

  protected:
    void paintEvent(QPaintEvent* suceso) override;

  private:
    [[nodiscard]] QFont letraQueCabe(const QRect& sitio) const;

    int indice_;
    Puesto puesto_;
    bool calcula_;  ///< opens a calculator: it stands out from what only tells something
};

}  // namespace orvemo
