#pragma once

#include "toolkit/linea_campo.h"

class QAction;

namespace orvemo {

/// A date: typed like any text, or picked in a calendar that drops down from it (its button, Alt+Down or F4).
class FechaCampo final : public LineaCampo {
  public:
    FechaCampo(Campo& campo, Anfitrion& anfitrion);

  protected:
    void keyPressEvent(QKeyEvent* suceso) override;
    [[nodiscard]] int anchura() const override;

  private:
    void despliegaCalendario();
};

}  // namespace orvemo
