#include "toolkit/supuesto.h"

#include <QPainter>

#include "toolkit/medidas.h"
#include "toolkit/paleta.h"

namespace orvemo {

namespace {

// Twips.
constexpr int kRadio = 90;
constexpr int kMargenVentana = 150;
constexpr int kAire = 150;  // around what was scrolled to

}  // namespace

Supuesto::Supuesto(QWidget* padre) : QWidget{padre} {
    QPalette paleta = palette();
    paleta.setColor(QPalette::Window, kColorPanel);
    setPalette(paleta);
    setFixedSize(px(kAnchoSupuesto), px(kAltoSupuesto));
}

void Supuesto::paintEvent(QPaintEvent* /*suceso*/) {
    QPainter pincel{this};
    pincel.setRenderHint(QPainter::Antialiasing);
    pincel.setPen(kColorBorde);
    pincel.setBrush(kColorPanel);
    pincel.drawRoundedRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5), px(kRadio), px(kRadio));
}

QScrollArea* centrado(QWidget* panel, QWidget* ventana) {
    auto* marco = new QScrollArea{ventana};
    marco->setFrameShape(QFrame::NoFrame);
    marco->setFocusPolicy(Qt::NoFocus);
    marco->setAlignment(Qt::AlignCenter);
    marco->setWidget(panel);
    panel->setAutoFillBackground(false);  // its corners are round
    return marco;
}

void llevaALaVista(QWidget& widget) {
    for (QWidget* padre = widget.parentWidget(); padre != nullptr; padre = padre->parentWidget()) {
        if (auto* marco = qobject_cast<QScrollArea*>(padre)) {
            marco->ensureWidgetVisible(&widget, px(kAire), px(kAire));
        }
    }
}

QSize tallaDeVentana() {
    return {px(kAnchoSupuesto + 2 * kMargenVentana), px(kAltoSupuesto + 2 * kMargenVentana)};
}

}  // namespace orvemo
