#include "toolkit/boton_opcion.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include "toolkit/medidas.h"
#include "toolkit/paleta.h"
#include "toolkit/pinceladas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

constexpr int kRelleno = 75;  // twips at each side of the caption
constexpr double kLetraMinima = 5;
constexpr double kPasoLetra = 0.5;
constexpr int kCanto = 60;
constexpr int kAspectoTexto = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

/// The edge by which a calculator is told from the rest.
void pintaCanto(QPainter& pincel, const QRect& boton) {
    pincel.save();
    pincel.setClipRect(boton.adjusted(0, 0, px(kCanto) - boton.width(), 0));
    pintaCaja(pincel, boton, {kColorAcento, kColorAcento});
    pincel.restore();
}

}  // namespace

BotonOpcion::BotonOpcion(const DefOpcion& def, int indice, QWidget* padre)
    : QPushButton{aQt(def.rotulo), padre},
      indice_{indice},
      puesto_{def.puesto},
      calcula_{def.materia != Materia::Consulta} {
    setObjectName(QStringLiteral("Opcion%1").arg(indice));
    setAccessibleName(text().remove(QLatin1Char('&')));
    setAccessibleDescription(aQt(tituloDe(def.materia)));
    ponPuesto(def.puesto, def.puesto.top());
}

void BotonOpcion::ponPuesto(Puesto puesto, int top) {
    puesto_ = puesto;
    setGeometry(px(puesto.left()), px(top), px(kAnchoOpcion), px(kAltoOpcion));
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
    Caja caja = cajaDeBoton(opcion);
    if (!calcula_ && !opcion.state.testFlag(QStyle::State_MouseOver) &&
        !opcion.state.testFlag(QStyle::State_Sunken))
        caja.fondo = Qt::transparent;
    pintaCaja(pincel, rect(), caja);
    if (calcula_) pintaCanto(pincel, rect());
    const QRect sitio = rect().adjusted(px(kRelleno), 0, -px(kRelleno), 0);
    pincel.setFont(letraQueCabe(sitio));
    pincel.setPen(calcula_ ? kColorTexto : kColorTextoSecundario);
    pincel.drawText(sitio, kAspectoTexto, text());
}

}  // namespace orvemo
