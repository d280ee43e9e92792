#include "toolkit/marca_veredicto.h"

#include <QPainter>

#include "toolkit/medidas.h"
#include "toolkit/paleta.h"

namespace orvemo {

namespace {

constexpr double kCuerpo = 1.25;       // of the letters of the screen
constexpr double kLadoEnLineas = 1.7;  // side of the mark, in lines of the word
constexpr int kHueco = 120;            // twips between mark and word

void pintaTrazos(QPainter& pincel, const QRectF& r, bool favorable) {
    const auto punto = [&](double x, double y) {
        return QPointF{r.x() + r.width() * x, r.y() + r.height() * y};
    };
    pincel.setPen({kColorBase, r.width() * 0.11, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    if (favorable) {
        pincel.drawPolyline(QPolygonF{{punto(0.27, 0.53), punto(0.44, 0.69), punto(0.74, 0.34)}});
    } else {
        pincel.drawLine(punto(0.31, 0.31), punto(0.69, 0.69));
        pincel.drawLine(punto(0.69, 0.31), punto(0.31, 0.69));
    }
}

}  // namespace

MarcaVeredicto::MarcaVeredicto(bool favorable, QWidget* padre) : QLabel{padre}, favorable_{favorable} {
    QFont letra = font();
    letra.setBold(true);
    letra.setPointSizeF(letra.pointSizeF() * kCuerpo);
    setFont(letra);
    QPalette paleta = palette();
    paleta.setColor(QPalette::WindowText, favorable ? kColorFavorable : kColorDesfavorable);
    setPalette(paleta);
    setTextFormat(Qt::PlainText);
    setIndent(lado() + px(kHueco));
}

int MarcaVeredicto::lado() const {
    return qRound(fontMetrics().height() * kLadoEnLineas);
}

QSize MarcaVeredicto::sizeHint() const {
    return {lado() + px(kHueco) + fontMetrics().horizontalAdvance(text()) + px(kHueco), lado()};
}

void MarcaVeredicto::paintEvent(QPaintEvent* suceso) {
    QPainter pincel{this};
    pincel.setRenderHint(QPainter::Antialiasing);
    const QRectF sitio{0, (height() - lado()) / 2.0, double(lado()), double(lado())};
    pincel.setPen(Qt::NoPen);
    pincel.setBrush(favorable_ ? kColorFavorable : kColorDesfavorable);
    if (favorable_) {
        pincel.drawEllipse(sitio);
    } else {
        pincel.drawRoundedRect(sitio, lado() / 6.0, lado() / 6.0);
    }
    pintaTrazos(pincel, sitio, favorable_);
    pincel.end();
    QLabel::paintEvent(suceso);
}

}  // namespace orvemo
