#pragma once

#include <QScrollArea>
#include <QWidget>

namespace orvemo {

/// The panel of 9600 by 6600 twips that every screen stands on.
class Supuesto final : public QWidget {
  public:
    explicit Supuesto(QWidget* padre = nullptr);

  protected:
    void paintEvent(QPaintEvent* suceso) override;
};

/// Keeps a panel in the middle of a window, whatever the window's size, with scroll bars where it is smaller.
[[nodiscard]] QScrollArea* centrado(QWidget* panel, QWidget* ventana);

/// Scrolls whatever holds the widget until it is in view, with some air around it.
void llevaALaVista(QWidget& widget);

/// The panel and the margin that a window leaves around it.
[[nodiscard]] QSize tallaDeVentana();

}  // namespace orvemo
