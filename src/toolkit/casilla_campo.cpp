#include "toolkit/casilla_campo.h"

#include <QPainter>
#include <QStyleOptionButton>

#include "toolkit/medidas.h"
#include "toolkit/pinceladas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

constexpr int kAnchoMaximo = 8400;  // twips of a caption that has the panel for itself

}  // namespace

CasillaCampo::CasillaCampo(Campo& campo, Anfitrion& anfitrion) : Control{campo, anfitrion} {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QCheckBox::clicked, this, [this](bool marcado) {
        if (this->anfitrion().tomaFoco(*this)) formulario().marca(this->campo(), marcado);
        refrescaValor();
    });
}

void CasillaCampo::refrescaValor() {
    setText(sinMnemonico(campo().rotulo()).trimmed());
    setChecked(campo().marcado());
}

int CasillaCampo::anchoMaximo() const {
    const int caracteres = campo().def().anchura;
    return caracteres > 0 ? fontMetrics().averageCharWidth() * caracteres : px(kAnchoMaximo);
}

QSize CasillaCampo::sizeHint() const {
    return tallaDeMarca(fontMetrics(), text(), anchoMaximo());
}

void CasillaCampo::paintEvent(QPaintEvent* /*suceso*/) {
    QStyleOptionButton opcion;
    initStyleOption(&opcion);
    QPainter pincel{this};
    pintaMarcaConTexto(pincel, opcion, pintaCasilla);
}

}  // namespace orvemo
