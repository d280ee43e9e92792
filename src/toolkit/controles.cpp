#include "toolkit/controles.h"

#include <QPlainTextEdit>

#include "toolkit/boton_campo.h"
#include "toolkit/casilla_campo.h"
#include "toolkit/fecha_campo.h"
#include "toolkit/grafica_campo.h"
#include "toolkit/imagen_campo.h"
#include "toolkit/linea_campo.h"
#include "toolkit/listas_campo.h"
#include "toolkit/marca_veredicto.h"
#include "toolkit/medidas.h"
#include "toolkit/opciones_campo.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Twips, at least, of the kinds that take what room is left.
constexpr int kAltoTexto = 1200;
constexpr int kAnchoTexto = 2400;

class TextoLargoCampo final : public QPlainTextEdit, public Control {
  public:
    TextoLargoCampo(Campo& campo, Anfitrion& anfitrion) : Control{campo, anfitrion} {
        setReadOnly(true);
        setTabChangesFocus(true);
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        setMinimumSize(px(kAnchoTexto), px(kAltoTexto));
        setViewportMargins(px(kRellenoCampo), px(kRellenoCampo), px(kRellenoCampo), px(kRellenoCampo));
        ponNombreAccesible(QStringLiteral("Conclusiones"));  // they stand under no label
    }
    [[nodiscard]] QWidget& widget() override { return *this; }

  protected:
    // The widget drops the carriage returns: the field's own text is the truth, this is its image.
    void refrescaValor() override { setPlainText(aQt(campo().texto())); }
};

class EtiquetaCampo final : public QLabel, public Control {
  public:
    EtiquetaCampo(Campo& campo, Anfitrion& anfitrion) : Control{campo, anfitrion} {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
    }
    [[nodiscard]] QWidget& widget() override { return *this; }

  protected:
    void refrescaValor() override {
        setText(aQt(campo().texto().empty() ? campo().rotulo() : campo().texto()));
    }
};

class VeredictoCampo final : public MarcaVeredicto, public Control {
  public:
    VeredictoCampo(Campo& campo, Anfitrion& anfitrion)
        : MarcaVeredicto{esFavorable(campo)}, Control{campo, anfitrion} {}
    [[nodiscard]] QWidget& widget() override { return *this; }

  protected:
    void refrescaValor() override {
        const char* palabra = esFavorable(campo()) ? "Resultado favorable" : "Resultado desfavorable";
        setText(campo().rotulo().empty() ? aQt(palabra) : aQt(campo().rotulo()));
        setAccessibleName(text());
        updateGeometry();
    }

  private:
    static bool esFavorable(const Campo& campo) { return !campo.def().nombre.ends_with("Mal"); }
};

template <typename ControlDeCampo>
Control* crea(Campo& campo, Anfitrion& anfitrion) {
    return new ControlDeCampo{campo, anfitrion};
}

Control* deSuClase(Campo& campo, Anfitrion& anfitrion) {
    switch (campo.def().clase) {
        case Clase::Texto:
        case Clase::Resultado:
            return crea<LineaCampo>(campo, anfitrion);
        case Clase::FechaSelector:
        case Clase::FechaEscrita:
            return crea<FechaCampo>(campo, anfitrion);
        case Clase::Casilla:
            return crea<CasillaCampo>(campo, anfitrion);
        case Clase::Lista:
            return crea<ListaCampo>(campo, anfitrion);
        case Clase::Opciones:
            return crea<OpcionesCampo>(campo, anfitrion);
        case Clase::ListaAbierta:
            return crea<ListaAbiertaCampo>(campo, anfitrion);
        case Clase::TextoLargo:
            return crea<TextoLargoCampo>(campo, anfitrion);
        case Clase::Imagen:
            return crea<ImagenCampo>(campo, anfitrion);
        case Clase::Boton:
            return nuevoBoton(campo, anfitrion);
        case Clase::Veredicto:
            return crea<VeredictoCampo>(campo, anfitrion);
        case Clase::Grafica:
            return crea<GraficaCampo>(campo, anfitrion);
        case Clase::Etiqueta:
            break;
    }
    return crea<EtiquetaCampo>(campo, anfitrion);
}

}  // namespace

Control* nuevoControl(Campo& campo, Anfitrion& anfitrion, QWidget* padre) {
    Control* control = deSuClase(campo, anfitrion);
    QWidget& widget = control->widget();
    widget.setParent(padre);  // before it shows itself: a widget without parent is a window
    widget.setObjectName(nombreDe(campo));
    if (widget.toolTip().isEmpty()) widget.setToolTip(aQt(campo.def().ayuda));
    control->refresca();
    return control;
}

}  // namespace orvemo
