#include "toolkit/estilo.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QStyleFactory>
#include <QStyleOption>
#include <QStyleOptionComplex>
#include <QToolTip>
#include <algorithm>

#include "toolkit/iconos.h"
#include "toolkit/medidas.h"

namespace orvemo {

namespace {

constexpr double kPuntosLetra = 7.5;  // at factor 1
// Twips.
constexpr int kRadio = 60;
constexpr int kLadoCasilla = 210;
constexpr int kLadoIcono = 210;
constexpr int kLadoIconoMensaje = 540;
constexpr int kSeparacionHorizontal = 120;
constexpr int kSeparacionVertical = 90;
constexpr int kMargen = 150;
constexpr int kRellenoBoton = 180;
constexpr int kHuecoIcono = 75;
constexpr int kBajoTitulo = 45;

struct Caja {
    QColor fondo;
    QColor borde;
    double grosor = 1;
};

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

bool tiene(const QStyleOption& opcion, QStyle::StateFlag estado) {
    return opcion.state.testFlag(estado);
}

bool conFoco(const QStyleOption& opcion) {
    return tiene(opcion, QStyle::State_HasFocus) && tiene(opcion, QStyle::State_Enabled);
}

Caja cajaDeCampo(const QStyleOption& opcion) {
    if (!tiene(opcion, QStyle::State_Enabled)) return {kColorVentana, kColorBorde};
    const QColor fondo = tiene(opcion, QStyle::State_ReadOnly) ? kColorPanel : kColorBase;
    if (conFoco(opcion)) return {fondo, kColorAcento, grosorFoco()};
    return {fondo, tiene(opcion, QStyle::State_MouseOver) ? kColorTextoSecundario : kColorBordeControl};
}

/// One that can't be pressed looks like any other.
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

/// A button of the bar shows its shape only under the mouse, pressed or with the focus.
Caja cajaDeBotonPlano(const QStyleOption& opcion) {
    Caja caja{Qt::transparent, Qt::transparent};
    if (!tiene(opcion, QStyle::State_Enabled)) return caja;
    if (tiene(opcion, QStyle::State_MouseOver)) caja.fondo = kColorVentana;
    if (opcion.state & (QStyle::State_Sunken | QStyle::State_On)) caja.fondo = kColorAcentoPalido;
    if (conFoco(opcion)) caja = {caja.fondo, kColorAcento, grosorFoco()};
    return caja;
}

/// Icon and caption, in the middle together.
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

QPen plumaDeTrazo(const QColor& color) {
    return {color, 1.3 * escala(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void pintaCasilla(QPainter& pincel, const QStyleOption& opcion) {
    Caja caja = cajaDeCampo(opcion);
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

/// The title of a group stands above its frame.
QRect parteDeGrupo(const QStyleOptionGroupBox& grupo, QStyle::SubControl parte) {
    const int alto = grupo.fontMetrics.height();
    const QRect marco = grupo.rect.adjusted(0, alto + px(kBajoTitulo), 0, 0);
    if (parte == QStyle::SC_GroupBoxLabel) return {grupo.rect.topLeft(), QSize{grupo.rect.width(), alto}};
    return parte == QStyle::SC_GroupBoxContents ? marco.adjusted(1, 1, -1, -1) : marco;
}

void pintaGrupo(QPainter& pincel, const QStyleOptionGroupBox& grupo) {
    pintaCaja(pincel, parteDeGrupo(grupo, QStyle::SC_GroupBoxFrame), {Qt::transparent, kColorBorde});
    pincel.setPen(kColorAcento);
    pincel.drawText(parteDeGrupo(grupo, QStyle::SC_GroupBoxLabel), Qt::AlignLeft | Qt::TextShowMnemonic,
                    grupo.text);
}

/// How much larger than the ordinary the user's desktop wants letters.
double ampliacionDeLetras() {
    constexpr double kPuntosDelEscritorio = 11;
    constexpr double kMaxima = 2;
    // The style's own letters, once installed, say nothing about the desktop.
    static const double ampliacion =
        std::clamp(QApplication::font().pointSizeF() / kPuntosDelEscritorio, 1.0, kMaxima);
    return ampliacion;
}

QPalette paletaClara() {
    QPalette paleta{kColorTexto, kColorBase, kColorBase, kColorBorde,  kColorBordeControl,
                    kColorTexto, kColorBase, kColorBase, kColorVentana};
    paleta.setColor(QPalette::AlternateBase, kColorPanel);
    paleta.setColor(QPalette::Highlight, kColorAcento);
    paleta.setColor(QPalette::HighlightedText, kColorBase);
    paleta.setColor(QPalette::Inactive, QPalette::Highlight, kColorBordeControl);
    paleta.setColor(QPalette::ToolTipBase, kColorBase);
    paleta.setColor(QPalette::ToolTipText, kColorTexto);
    paleta.setColor(QPalette::Link, kColorAcento);
    paleta.setColor(QPalette::LinkVisited, kColorAcento);
    paleta.setColor(QPalette::PlaceholderText, kColorTextoInactivo);
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        paleta.setColor(QPalette::Disabled, papel, kColorTextoInactivo);
    }
    return paleta;
}

}  // namespace

Estilo::Estilo() : QProxyStyle{QStyleFactory::create(QStringLiteral("Fusion"))} {}

void Estilo::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pincel,
                           const QWidget* widget) const {
    switch (elemento) {
        case PE_PanelButtonCommand:
            pintaCaja(*pincel, opcion->rect,
                      esPrincipal(*opcion, widget) ? cajaDeBotonPrincipal(*opcion) : cajaDeBoton(*opcion));
            return;
        case PE_PanelButtonTool:
            pintaCaja(*pincel, opcion->rect, cajaDeBotonPlano(*opcion));
            return;
        case PE_FrameLineEdit:
        case PE_Frame:
            pintaCaja(*pincel, opcion->rect, cajaDeCampo(*opcion));
            return;
        case PE_FrameMenu:
            pincel->setPen(kColorBordeControl);
            pincel->drawRect(opcion->rect.adjusted(0, 0, -1, -1));
            return;
        case PE_IndicatorCheckBox:
            pintaCasilla(*pincel, *opcion);
            return;
        case PE_FrameFocusRect:
            if (qobject_cast<const QWidget*>(opcion->styleObject) != nullptr &&
                opcion->styleObject->inherits("QCheckBox")) {
                pintaFoco(*pincel, opcion->rect);
            }
            return;
        default:
            QProxyStyle::drawPrimitive(elemento, opcion, pincel, widget);
    }
}

void Estilo::drawControl(ControlElement elemento, const QStyleOption* opcion, QPainter* pincel,
                         const QWidget* widget) const {
    const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(opcion);
    if (elemento == CE_PushButtonLabel && boton != nullptr) {
        pintaRotulo(*pincel, *boton, esPrincipal(*opcion, widget));
        return;
    }
    QProxyStyle::drawControl(elemento, opcion, pincel, widget);
}

void Estilo::drawComplexControl(ComplexControl control, const QStyleOptionComplex* opcion, QPainter* pincel,
                                const QWidget* widget) const {
    const auto* lista = qstyleoption_cast<const QStyleOptionComboBox*>(opcion);
    const auto* grupo = qstyleoption_cast<const QStyleOptionGroupBox*>(opcion);
    if (control == CC_ComboBox && lista != nullptr && !lista->editable) {
        pintaCaja(*pincel, opcion->rect, cajaDeCampo(*opcion));
        pintaPuntaAbajo(*pincel, subControlRect(CC_ComboBox, opcion, SC_ComboBoxArrow, widget),
                        tiene(*opcion, State_Enabled));
    } else if (control == CC_GroupBox && grupo != nullptr) {
        pintaGrupo(*pincel, *grupo);
    } else {
        QProxyStyle::drawComplexControl(control, opcion, pincel, widget);
    }
}

QRect Estilo::subControlRect(ComplexControl control, const QStyleOptionComplex* opcion, SubControl parte,
                             const QWidget* widget) const {
    const auto* grupo = qstyleoption_cast<const QStyleOptionGroupBox*>(opcion);
    if (control == CC_GroupBox && grupo != nullptr) return parteDeGrupo(*grupo, parte);
    const QRect sitio = QProxyStyle::subControlRect(control, opcion, parte, widget);
    const bool textoDeLista = control == CC_ComboBox && parte == SC_ComboBoxEditField;
    return textoDeLista ? sitio.adjusted(px(kRellenoCampo), 0, 0, 0) : sitio;
}

int Estilo::pixelMetric(PixelMetric medida, const QStyleOption* opcion, const QWidget* widget) const {
    switch (medida) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
            return px(kLadoCasilla);
        case PM_ButtonIconSize:
        case PM_SmallIconSize:
            return px(kLadoIcono);
        case PM_MessageBoxIconSize:
            return px(kLadoIconoMensaje);
        case PM_LayoutHorizontalSpacing:
        case PM_CheckBoxLabelSpacing:
            return px(kSeparacionHorizontal);
        case PM_LayoutVerticalSpacing:
            return px(kSeparacionVertical);
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return px(kMargen);
        case PM_MenuPanelWidth:
            return 1;
        case PM_DefaultFrameWidth:
        case PM_ComboBoxFrameWidth:
            return qRound(grosorFoco());
        default:
            return QProxyStyle::pixelMetric(medida, opcion, widget);
    }
}

QSize Estilo::sizeFromContents(ContentsType clase, const QStyleOption* opcion, const QSize& contenido,
                               const QWidget* widget) const {
    QSize talla = QProxyStyle::sizeFromContents(clase, opcion, contenido, widget);
    const int alto = qRound(opcion->fontMetrics.height() * 1.55);
    if (clase == CT_LineEdit || clase == CT_ComboBox) talla.setHeight(alto);
    if (clase == CT_ItemViewItem)
        talla.setHeight(qMax(talla.height(), qRound(opcion->fontMetrics.height() * 1.35)));
    if (clase == CT_PushButton) {
        talla = {qMax(talla.width(), contenido.width() + 2 * px(kRellenoBoton)),
                 qMax(contenido.height(), alto)};
    }
    return talla;
}

int Estilo::styleHint(StyleHint rasgo, const QStyleOption* opcion, const QWidget* widget,
                      QStyleHintReturn* vuelta) const {
    switch (rasgo) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_ItemView_ActivateItemOnSingleClick:
            return 0;
        case SH_UnderlineShortcut:
            return 1;
        default:
            return QProxyStyle::styleHint(rasgo, opcion, widget, vuelta);
    }
}

QIcon Estilo::standardIcon(StandardPixmap dibujo, const QStyleOption* opcion, const QWidget* widget) const {
    switch (dibujo) {
        case SP_MessageBoxQuestion:
            return icono(Dibujo::Pregunta);
        case SP_MessageBoxInformation:
            return icono(Dibujo::Informacion);
        case SP_MessageBoxWarning:
            return icono(Dibujo::Aviso);
        case SP_ArrowLeft:
            return iconoClaro(Dibujo::FlechaIzquierda);
        case SP_ArrowRight:
            return iconoClaro(Dibujo::FlechaDerecha);
        default:
            return QProxyStyle::standardIcon(dibujo, opcion, widget);
    }
}

QPalette Estilo::standardPalette() const {
    return paletaClara();
}

void instalaEstilo(QApplication& aplicacion) {
    instalaEstilo(aplicacion, QGuiApplication::primaryScreen()->availableSize());
}

void instalaEstilo(QApplication& aplicacion, QSize pantalla) {
    const double ampliacion = ampliacionDeLetras();
    ponEscala(escalaPara(pantalla, ampliacion));
    aplicacion.setStyle(new Estilo);
    aplicacion.setPalette(paletaClara());
    QFont letra{QStringLiteral("Liberation Sans")};
    letra.setPointSizeF(kPuntosLetra * escalaPara(pantalla, 1) * ampliacion);
    QApplication::setFont(letra);
    QToolTip::setPalette(paletaClara());
    QToolTip::setFont(letra);
}

}  // namespace orvemo
