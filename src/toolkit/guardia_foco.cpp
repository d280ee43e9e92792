#include "toolkit/guardia_foco.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <utility>

namespace orvemo {

namespace {

bool usaLaVentana(QEvent::Type clase) {
    return clase == QEvent::KeyPress || clase == QEvent::MouseButtonPress ||
           clase == QEvent::MouseButtonRelease || clase == QEvent::MouseButtonDblClick;
}

}  // namespace

GuardiaFoco::GuardiaFoco(QWidget& ventana, Formulario& formulario)
    : QObject{&ventana}, ventana_{ventana}, formulario_{formulario} {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* ahora) { cambia(ahora); });
    qApp->installEventFilter(this);
}

void GuardiaFoco::cambia(QWidget* ahora) {
    // Another program, a menu, a box or a dialog: no field is left.
    if (ahora == nullptr || ahora->window() != &ventana_) return;
    Control* control = controlDe(ahora);
    if (control == nullptr) return;
    tocado_ = ahora;
    if (std::exchange(pendiente_, &control->campo()) == nullptr) encola();
}

void GuardiaFoco::encola() {
    QMetaObject::invokeMethod(
        this, [this] { procesa(); }, Qt::QueuedConnection);
}

bool GuardiaFoco::procesa() {
    if (procesando_ || pendiente_ == nullptr) return true;
    procesando_ = true;
    Campo& destino = *std::exchange(pendiente_, nullptr);
    const QPointer<QWidget> tocado{tocado_.data()};  // a box may let the panel be built anew
    const bool admitido = formulario_.oculto() || formulario_.foco(destino);
    procesando_ = false;
    // The box told why while the window wasn't active: the widget doesn't hear that the focus went back.
    if (!admitido && !tocado.isNull()) controlDe(tocado)->deja();
    // While a box was open the queue may have run dry without telling where the focus went since.
    if (pendiente_ != nullptr) encola();
    return admitido;
}

bool GuardiaFoco::toma(Control& control) {
    if (!procesa()) return false;
    control.widget().setFocus(Qt::OtherFocusReason);
    // Without a window manager the window may be inactive and tell no movement.
    tocado_ = &control.widget();
    pendiente_ = &control.campo();
    return procesa();
}

bool GuardiaFoco::eventFilter(QObject* objeto, QEvent* suceso) {
    if (!usaLaVentana(suceso->type()) || pendiente_ == nullptr) return false;
    auto* widget = qobject_cast<QWidget*>(objeto);
    if (widget == nullptr || widget->window() != &ventana_ || procesa()) return false;
    if (auto* boton = qobject_cast<QAbstractButton*>(widget)) boton->setDown(false);
    return true;
}

}  // namespace orvemo
