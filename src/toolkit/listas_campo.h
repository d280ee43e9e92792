#pragma once

#include <QComboBox>

#include "toolkit/control.h"
#include "toolkit/lista_textos.h"

namespace orvemo {

/// A drop-down list. The wheel turns it only while it has the focus.
class ListaCampo final : public QComboBox, public Control {
  public:
    ListaCampo(Campo& campo, Anfitrion& anfitrion);

    [[nodiscard]] QWidget& widget() override { return *this; }
    /// Where there is no room for its entries it shows their beginnings; the whole ones when it drops down.
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void refrescaValor() override;
    void wheelEvent(QWheelEvent* suceso) override;

  private:
    std::vector<std::string> opciones_;
};

/// A list box. A double click or Enter on an entry is told apart from choosing it.
class ListaAbiertaCampo final : public ListaTextos, public Control {
  public:
    ListaAbiertaCampo(Campo& campo, Anfitrion& anfitrion);

    [[nodiscard]] QWidget& widget() override { return *this; }
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void refrescaValor() override { muestra(campo().opciones(), campo().indice()); }

  private:
    void elige(int indice);
};

}  // namespace orvemo
