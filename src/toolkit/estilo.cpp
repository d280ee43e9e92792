#include "toolkit/estilo.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QStyleOptionComplex>

#include "toolkit/iconos.h"
#include "toolkit/medidas.h"
#include "toolkit/paleta.h"
#include "toolkit/pinceladas.h"

namespace orvemo {

namespace {

// Twips.
constexpr int kLadoIcono = 210;
constexpr int kLadoIconoMensaje = 540;
constexpr int kSeparacionHorizontal = 120;
constexpr int kSeparacionVertical = 80;
constexpr int kMargen = 150;
constexpr int kMargenVertical = 105;
constexpr int kRellenoBoton = 180;
constexpr int kAnchoBoton = 800;  // at least
constexpr int kRellenoPequeno = 120;
constexpr int kBajoTitulo = 30;
constexpr int kAireMinimo = 3;  // pixels over and under a line of text, whatever the scale
constexpr int kAnchoBarra = 180;
constexpr int kTiradorMinimo = 360;
constexpr int kAireTirador = 45;

/// A check box or a radio button: one ring around mark and caption.
bool esDeMarca(const QObject* objeto) {
    return objeto != nullptr && (objeto->inherits("QCheckBox") || objeto->inherits("QRadioButton"));
}

bool enPanelDenso(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (widget->property(kPropiedadDenso).toBool()) return true;
    }
    return false;
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

QRect parteDeBarra(const QStyleOptionSlider& barra, QStyle::SubControl parte) {
    const bool tumbada = barra.orientation == Qt::Horizontal;
    const int largo = tumbada ? barra.rect.width() : barra.rect.height();
    const int recorrido = barra.maximum - barra.minimum;
    const int proporcion =
        static_cast<int>(qint64{largo} * barra.pageStep / qMax(1, recorrido + barra.pageStep));
    const int tirador = qBound(qMin(largo, px(kTiradorMinimo)), proporcion, largo);
    const int desde = QStyle::sliderPositionFromValue(barra.minimum, barra.maximum, barra.sliderPosition,
                                                      largo - tirador, barra.upsideDown);
    const auto tramo = [&](int a, int b) {
        return tumbada ? QRect{a, 0, b - a, barra.rect.height()} : QRect{0, a, barra.rect.width(), b - a};
    };
    switch (parte) {
        case QStyle::SC_ScrollBarSlider:
            return tramo(desde, desde + tirador);
        case QStyle::SC_ScrollBarGroove:
            return tramo(0, largo);
        case QStyle::SC_ScrollBarSubPage:
            return tramo(0, desde);
        case QStyle::SC_ScrollBarAddPage:
            return tramo(desde + tirador, largo);
        default:
            return {};
    }
}

/// A bar without arrows: a groove of the window's colour and a handle that stands out from it.
void pintaBarra(QPainter& pincel, const QStyleOptionSlider& barra, const QRect& tirador) {
    pincel.fillRect(barra.rect, kColorVentana);
    if (!barra.state.testFlag(QStyle::State_Enabled) || barra.minimum == barra.maximum) return;
    const bool encima = barra.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    const int aire = px(kAireTirador);
    pintaCaja(pincel, tirador.adjusted(aire, aire, -aire, -aire),
              {encima ? kColorAcento : kColorTextoSecundario, Qt::transparent});
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
        case PE_IndicatorRadioButton:
            pintaRedonda(*pincel, *opcion);
            return;
        case PE_FrameFocusRect:
            // The other controls draw the ring on their own edge.
            if (esDeMarca(opcion->styleObject)) pintaFoco(*pincel, opcion->rect);
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
    const auto* boton = qstyleoption_cast<const QStyleOptionToolButton*>(opcion);
    const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(opcion);
    if (control == CC_ScrollBar && barra != nullptr) {
        pintaBarra(*pincel, *barra, subControlRect(CC_ScrollBar, opcion, SC_ScrollBarSlider, widget));
    } else if (control == CC_ComboBox && lista != nullptr && !lista->editable) {
        pintaCaja(*pincel, opcion->rect, cajaDeCampo(*opcion));
        pintaPuntaAbajo(*pincel, subControlRect(CC_ComboBox, opcion, SC_ComboBoxArrow, widget),
                        opcion->state.testFlag(State_Enabled));
    } else if (control == CC_GroupBox && grupo != nullptr) {
        pintaGrupo(*pincel, *grupo);
    } else if (control == CC_ToolButton && boton != nullptr) {
        pintaCaja(*pincel, opcion->rect, cajaDeBotonPlano(*opcion));
        proxy()->drawControl(CE_ToolButtonLabel, boton, pincel, widget);
    } else {
        QProxyStyle::drawComplexControl(control, opcion, pincel, widget);
    }
}

QRect Estilo::subControlRect(ComplexControl control, const QStyleOptionComplex* opcion, SubControl parte,
                             const QWidget* widget) const {
    const auto* grupo = qstyleoption_cast<const QStyleOptionGroupBox*>(opcion);
    if (control == CC_GroupBox && grupo != nullptr) return parteDeGrupo(*grupo, parte);
    const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(opcion);
    if (control == CC_ScrollBar && barra != nullptr) return parteDeBarra(*barra, parte);
    const QRect sitio = QProxyStyle::subControlRect(control, opcion, parte, widget);
    const bool textoDeLista = control == CC_ComboBox && parte == SC_ComboBoxEditField;
    return textoDeLista ? sitio.adjusted(px(kRellenoCampo), 0, 0, 0) : sitio;
}

/// The ring stands off the mark and its caption.
QRect Estilo::subElementRect(SubElement parte, const QStyleOption* opcion, const QWidget* widget) const {
    const int aire = px(kAireFoco);
    switch (parte) {
        case SE_CheckBoxFocusRect:
        case SE_RadioButtonFocusRect:
            return opcion->rect;
        case SE_CheckBoxIndicator:
        case SE_CheckBoxContents:
        case SE_RadioButtonIndicator:
        case SE_RadioButtonContents:
            return QProxyStyle::subElementRect(parte, opcion, widget).translated(aire, 0);
        default:
            return QProxyStyle::subElementRect(parte, opcion, widget);
    }
}

int Estilo::pixelMetric(PixelMetric medida, const QStyleOption* opcion, const QWidget* widget) const {
    switch (medida) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return px(kLadoMarca);
        case PM_ButtonIconSize:
        case PM_SmallIconSize:
            return px(kLadoIcono);
        case PM_MessageBoxIconSize:
            return px(kLadoIconoMensaje);
        case PM_LayoutHorizontalSpacing:
        case PM_CheckBoxLabelSpacing:
        case PM_RadioButtonLabelSpacing:
            return px(kSeparacionHorizontal);
        case PM_LayoutVerticalSpacing:
            return px(kSeparacionVertical);
        case PM_LayoutLeftMargin:
        case PM_LayoutRightMargin:
            return px(kMargen);
        case PM_LayoutTopMargin:
        case PM_LayoutBottomMargin:
            return px(kMargenVertical);
        case PM_ScrollBarExtent:
            return px(kAnchoBarra);
        case PM_ScrollBarSliderMin:
            return px(kTiradorMinimo);
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
    const int renglon = qRound(QFontMetricsF{opcion->fontMetrics}.height());
    const int alto = qMax(qRound(renglon * (enPanelDenso(widget) ? 1.2 : 1.55)), renglon + kAireMinimo);
    if (clase == CT_LineEdit || clase == CT_ComboBox) talla.setHeight(alto);
    if (clase == CT_ItemViewItem)
        talla.setHeight(qMax(talla.height(), qRound(opcion->fontMetrics.height() * 1.35)));
    if (clase == CT_CheckBox || clase == CT_RadioButton) talla += {2 * px(kAireFoco), 2 * px(kAireFoco)};
    if (clase == CT_PushButton && widget != nullptr && widget->property(kPropiedadPequeno).toBool()) {
        talla = {qMax(alto, contenido.width() + px(kRellenoPequeno)), alto};
    } else if (clase == CT_PushButton) {
        talla = {qMax(px(kAnchoBoton), contenido.width() + 2 * px(kRellenoBoton)),
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

}  // namespace orvemo
