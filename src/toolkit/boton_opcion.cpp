#include "toolkit/boton_opcion.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include "toolkit/medidas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

constexpr int kRelleno = 75;  // twips at each side of the caption
constexpr double kLetraMinima = 5;
constexpr double kPasoLetra = 0.5;
constexpr int kAspectoTexto = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

}  // namespace

BotonOpcion::BotonOpcion(const DefOpcion& def, int indice, QWidget* padre)
    : QPushButton{aQt(def.rotulo), padre}, indice_{indice}, puesto_{def.puesto} {
    setObjectName(QStringLiteral("Opcion%1").arg(indice));
    setAccessibleName(text().remove(QLatin1Char('&')));
    ponPuesto(def.puesto);
}

void BotonOpcion::ponPuesto(Puesto puesto) {
    puesto_ = puesto;
    setGeometry(px(puesto.left()), px(puesto.top()), px(kAnchoOpcion), px(kAltoOpcion));
}

QFont BotonOpcion::letraQueCabe(const QRect& sitio) const {
    QFont letra = font();
    const auto cabe = [&] {
        const QRect escrito = QFontMetrics{letra}.boundingRect(sitio, kAspectoTexto, text());
        return escrito.width() <= sitio.width() && escrito.height() <= sitio.height();
    };
    while (!cabe() && letra.pointSizeF() > kLetraMinima) letra.setPointSizeF(letra.pointSizeF() - kPasoLetra);
    return letra;
}

void BotonOpcion::paintEvent(QPaintEvent* /*suceso*/) {
    QStylePainter pincel{this};
    QStyleOptionButton opcion;
    initStyleOption(&opcion);
    pincel.drawControl(QStyle::CE_PushButtonBevel, opcion);
    const QRect sitio = rect().adjusted(px(kRelleno), 0, -px(kRelleno), 0);
    pincel.setFont(letraQueCabe(sitio));
    pincel.drawItemText(sitio, kAspectoTexto, palette(), isEnabled(), text(), QPalette::ButtonText);
}

}  // namespace orvemo
