#include "toolkit/pinceladas.h"

#include <QPainter>
#include <QWidget>

#include "toolkit/medidas.h"
#include "toolkit/paleta.h"

namespace orvemo {

namespace {

// Twips.
constexpr int kRadio = 60;
constexpr int kHuecoIcono = 75;
constexpr int kHuecoMarca = 120;

constexpr int kTextoDeMarca = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

bool tiene(const QStyleOption& opcion, QStyle::StateFlag estado) {
    return opcion.state.testFlag(estado);
}

bool conFoco(const QStyleOption& opcion) {
    return tiene(opcion, QStyle::State_HasFocus) && tiene(opcion, QStyle::State_Enabled);
}

/// The mark of a check box or radio button: the ring of the focus stands around mark and caption.
Caja cajaDeMarca(const QStyleOption& opcion) {
    QStyleOption sinFoco = opcion;
    sinFoco.state.setFlag(QStyle::State_HasFocus, false);
    return cajaDeCampo(sinFoco);
}

QPen plumaDeTrazo(const QColor& color) {
    return {color, 1.3 * escala(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

void pintaCaja(QPainter& pincel, const QRect& sitio, const Caja& caja) {
    pincel.save();
    pincel.setRenderHint(QPainter::Antialiasing);
    pincel.setBrush(caja.fondo);
    pincel.setPen(caja.borde.alpha() == 0 ? QPen{Qt::NoPen} : QPen{caja.borde, caja.grosor});
    const double m = caja.grosor / 2;
    pincel.drawRoundedRect(QRectF{sitio}.adjusted(m, m, -m, -m), px(kRadio), px(kRadio));
    pincel.restore();
}

double grosorFoco() {
    return 1.4 * escala();
}

Caja cajaDeCampo(const QStyleOption& opcion) {
    if (!tiene(opcion, QStyle::State_Enabled)) return {kColorVentana, kColorBorde};
    if (conFoco(opcion)) return {kColorBase, kColorAcento, grosorFoco()};
    if (tiene(opcion, QStyle::State_ReadOnly)) return {kColorVentana, kColorBorde};
    return {kColorBase, tiene(opcion, QStyle::State_MouseOver) ? kColorTextoSecundario : kColorBordeControl};
}

bool esPrincipal(const QStyleOption& opcion, const QWidget* widget) {
    if (!tiene(opcion, QStyle::State_Enabled)) return false;
    if (widget != nullptr && widget->property(kPropiedadPrincipal).toBool()) return true;
    const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(&opcion);
    return boton != nullptr && boton->features.testFlag(QStyleOptionButton::DefaultButton);
}

Caja cajaDeBotonPrincipal(const QStyleOption& opcion) {
    const bool hundido = tiene(opcion, QStyle::State_Sunken);
    const bool encima = tiene(opcion, QStyle::State_MouseOver);
    const QColor fondo = hundido ? kColorAcentoOscuro : encima ? kColorAcentoClaro : kColorAcento;
    return {fondo, conFoco(opcion) ? kColorTexto : fondo, conFoco(opcion) ? grosorFoco() : 1};
}

Caja cajaDeBoton(const QStyleOption& opcion) {
    if (!tiene(opcion, QStyle::State_Enabled)) return {kColorVentana, kColorBorde};
    const bool hundido = opcion.state & (QStyle::State_Sunken | QStyle::State_On);
    const bool encima = tiene(opcion, QStyle::State_MouseOver);
    const QColor fondo = hundido ? kColorAcentoPalido : encima ? kColorVentana : kColorBase;
    if (conFoco(opcion)) return {fondo, kColorAcento, grosorFoco()};
    return {fondo, encima ? kColorAcento : kColorBordeControl};
}

Caja cajaDeBotonPlano(const QStyleOption& opcion) {
    Caja caja{Qt::transparent, Qt::transparent};
    if (!tiene(opcion, QStyle::State_Enabled)) return caja;
    if (tiene(opcion, QStyle::State_MouseOver)) caja.fondo = kColorVentana;
    if (opcion.state & (QStyle::State_Sunken | QStyle::State_On)) caja.fondo = kColorAcentoPalido;
    if (conFoco(opcion)) caja = {caja.fondo, kColorAcento, grosorFoco()};
    return caja;
}

void pintaRotulo(QPainter& pincel, const QStyleOptionButton& boton, bool principal) {
    const bool activo = tiene(boton, QStyle::State_Enabled);
    const QSize icono = boton.icon.isNull() ? QSize{} : boton.iconSize;
    const QSize texto = boton.fontMetrics.size(Qt::TextShowMnemonic, boton.text);
    const int ancho = texto.width() + (boton.icon.isNull() ? 0 : icono.width() + px(kHuecoIcono));
    const QRect todo =
        QStyle::alignedRect(boton.direction, Qt::AlignCenter, {ancho, boton.rect.height()}, boton.rect);
    const auto parte = [&](Qt::Alignment lado, const QSize& talla) {
        return QStyle::alignedRect(boton.direction, lado | Qt::AlignVCenter, talla, todo);
    };
    if (!boton.icon.isNull()) {
        boton.icon.paint(&pincel, parte(Qt::AlignLeft, icono), Qt::AlignCenter,
                         activo ? QIcon::Normal : QIcon::Disabled);
    }
    pincel.setPen(principal ? kColorBase : boton.palette.color(QPalette::ButtonText));
    pincel.drawText(parte(Qt::AlignRight, texto), Qt::AlignCenter | Qt::TextShowMnemonic, boton.text);
}

void pintaFoco(QPainter& pincel, const QRect& sitio) {
    pintaCaja(pincel, sitio, {Qt::transparent, kColorAcento, grosorFoco()});
}

void pintaCasilla(QPainter& pincel, const QStyleOption& opcion) {
    Caja caja = cajaDeMarca(opcion);
    const bool marcada = tiene(opcion, QStyle::State_On);
    if (marcada && tiene(opcion, QStyle::State_Enabled)) caja = {kColorAcento, kColorAcento};
    pintaCaja(pincel, opcion.rect, caja);
    if (!marcada) return;
    const QRectF r{opcion.rect};
    pincel.save();
    pincel.setRenderHint(QPainter::Antialiasing);
    pincel.setPen(plumaDeTrazo(kColorBase));
    pincel.drawPolyline(QPolygonF{{r.x() + r.width() * 0.24, r.y() + r.height() * 0.53},
                                  {r.x() + r.width() * 0.43, r.y() + r.height() * 0.72},
                                  {r.x() + r.width() * 0.77, r.y() + r.height() * 0.30}});
    pincel.restore();
}

QSize tallaDeMarca(const QFontMetrics& letra, const QString& texto, int anchoMaximo) {
    const QRect hoja{0, 0, anchoMaximo, QWIDGETSIZE_MAX};
    const QSize escrito = letra.boundingRect(hoja, kTextoDeMarca, texto).size();
    const int aire = px(kAireFoco);
    return {px(kLadoMarca + kHuecoMarca) + escrito.width() + 1 + 2 * aire,
            escrito.height() + qMax(0, px(kLadoMarca) - letra.height()) + aire};
}

void pintaMarcaConTexto(QPainter& pincel, const QStyleOptionButton& opcion,
                        void (*pintaMarca)(QPainter&, const QStyleOption&)) {
    const int aire = px(kAireFoco);
    const int lado = px(kLadoMarca);
    const int renglon = opcion.fontMetrics.height();
    QStyleOption marca{static_cast<const QStyleOption&>(opcion)};
    marca.rect = {aire, aire / 2 + qMax(0, (renglon - lado) / 2), lado, lado};
    pintaMarca(pincel, marca);
    pincel.setPen(opcion.palette.color(QPalette::WindowText));
    const int arriba = aire / 2 + qMax(0, (lado - renglon) / 2);
    const QRect texto = opcion.rect.adjusted(aire + lado + px(kHuecoMarca), arriba, 0, 0);
    pincel.drawText(texto, kTextoDeMarca, opcion.text);
    if (conFoco(opcion)) pintaFoco(pincel, opcion.rect);
}

void pintaPuntaAbajo(QPainter& pincel, const QRect& sitio, bool activa) {
    const QPointF c = QRectF{sitio}.center();
    const double m = px(54);
    pincel.save();
    pincel.setRenderHint(QPainter::Antialiasing);
    pincel.setPen(plumaDeTrazo(activa ? kColorTextoSecundario : kColorTextoInactivo));
    pincel.drawPolyline(
        QPolygonF{{c.x() - m, c.y() - m / 2}, {c.x(), c.y() + m / 2}, {c.x() + m, c.y() - m / 2}});
    pincel.restore();
}

void pintaRedonda(QPainter& pincel, const QStyleOption& opcion) {
    const Caja caja = cajaDeMarca(opcion);
    const bool marcada = tiene(opcion, QStyle::State_On);
    const bool activa = tiene(opcion, QStyle::State_Enabled);
    const QColor tinta = activa ? kColorAcento : kColorTextoInactivo;
    const QRectF r = QRectF{opcion.rect}.adjusted(0.5, 0.5, -0.5, -0.5);
    const double hueco = r.width() * 0.28;
    pincel.save();
    pincel.setRenderHint(QPainter::Antialiasing);
    pincel.setPen({marcada ? tinta : caja.borde, 1.0});
    pincel.setBrush(caja.fondo);
    pincel.drawEllipse(r);
    if (marcada) {
        pincel.setPen(Qt::NoPen);
        pincel.setBrush(tinta);
        pincel.drawEllipse(r.adjusted(hueco, hueco, -hueco, -hueco));
    }
    pincel.restore();
}

}  // namespace orvemo
