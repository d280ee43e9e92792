#include "toolkit/control.h"

#include "toolkit/textos_qt.h"

namespace orvemo {

void Control::refresca() {
    QWidget& propio = widget();
    // A field that hides leaves its place empty: the ones below must not jump while the user types above.
    propio.setVisible(campo_.visiblePropio());
    propio.setEnabled(campo_.activo());
    refrescaRotulo();
    refrescaNombre();
    refrescaValor();
}

void Control::refrescaRotulo() {
    if (rotulo_ == nullptr) return;
    rotulo_->setVisible(campo_.visiblePropio());
    rotulo_->setText(aQt(campo_.rotulo()));
}

void Control::ponNombreAccesible(const QString& nombre) {
    nombreAccesible_ = nombre;
    refrescaNombre();
}

void Control::refrescaNombre() {
    QString nombre = aQt(campo_.rotulo()).trimmed();
    if (campo_.def().clase == Clase::Boton) nombre.remove(QLatin1Char('&'));  // its mnemonic
    if (nombre.isEmpty() || campo_.def().pequeno) nombre = aQt(campo_.def().ayuda);
    if (nombre.isEmpty()) nombre = nombreAccesible_;
    const Grupo* grupo = campo_.def().grupo;
    if (nombre.isEmpty() && grupo != nullptr) nombre = aQt(grupo->titulo());
    widget().setAccessibleName(nombre);
}

Control* controlDe(QWidget* widget) {
    for (; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
        if (auto* control = dynamic_cast<Control*>(widget)) return control;
    }
    return nullptr;
}

QString nombreDe(const Campo& campo) {
    const QString nombre = aQt(campo.def().nombre);
    return campo.def().indice == 0 ? nombre : nombre + QString::number(campo.def().indice);
}

}  // namespace orvemo
