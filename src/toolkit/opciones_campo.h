#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "toolkit/control.h"

class QRadioButton;

namespace orvemo {

/// A list whose entries are long: each a radio button with its whole line, in as many lines as it takes. The
/// arrows go from one to the next.
class OpcionesCampo final : public QWidget, public Control {
  public:
    OpcionesCampo(Campo& campo, Anfitrion& anfitrion);

    [[nodiscard]] QWidget& widget() override { return *this; }

  protected:
    void refrescaValor() override;

  private:
    void rehace();
    void elige(int indice);
    [[nodiscard]] int anchoDeLinea() const;

    std::vector<std::string> opciones_;
    std::vector<QRadioButton*> botones_;
};

}  // namespace orvemo
