#pragma once

#include <QObject>
#include <QPointer>

#include "toolkit/control.h"

namespace orvemo {

/// Carries the movements of the focus in a window to its form, whose checks on leaving may speak in a modal
/// box and take the focus back. A check never runs inside the toolkit's own focus change: it is queued, and
/// brought forward to the next key or mouse press, which is lost if the focus goes back.
class GuardiaFoco final : public QObject {
  public:
    GuardiaFoco(QWidget& ventana, Formulario& formulario);

    /// Tells the form of a movement still to be told. False when the form took the focus back.
    bool procesa();
    /// Gives the focus to a control that was used without it. False when the form took it back.
    [[nodiscard]] bool toma(Control& control);

    bool eventFilter(QObject* objeto, QEvent* suceso) override;

  private:
    void cambia(QWidget* ahora);
    void encola();

    QWidget& ventana_;
    Formulario& formulario_;
    Campo* pendiente_ = nullptr;  ///< where the focus has gone, the form not being told yet
    QPointer<QWidget> tocado_;    ///< the widget there
    bool procesando_ = false;
};

}  // namespace orvemo
