#include "toolkit/boton_campo.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <array>
#include <string_view>

#include "toolkit/iconos.h"
#include "toolkit/medidas.h"
#include "toolkit/pinceladas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Twips of a button of the bar and of its drawing.
constexpr int kLadoBoton = 480;
constexpr int kLadoDibujo = 300;

struct Aspecto {
    std::string_view final;  ///< how the button's name ends
    Dibujo dibujo;
    const char* atajo;  ///< keys
};

// The bars of all screens hold these buttons, with the screen's prefix before the name or without.
constexpr std::array kAspectos{
    Aspecto{"BotonNuevo", Dibujo::Nuevo, "Ctrl+N"},
    Aspecto{"BotonCarga", Dibujo::Carpeta, "Ctrl+O"},
    Aspecto{"BotonGraba", Dibujo::Disco, "Ctrl+G"},
    Aspecto{"BotonPrint", Dibujo::Impresora, "Ctrl+P"},
    Aspecto{"BotonExit", Dibujo::Puerta, "Ctrl+W"},
    Aspecto{"BotonCDROM", Dibujo::Disco, "Ctrl+G"},
    Aspecto{"Siguiente", Dibujo::FlechaDerecha, "Alt+Right"},
    Aspecto{"BotonCalcular", Dibujo::FlechaDerecha, "Alt+Right"},
    Aspecto{"Anterior", Dibujo::FlechaIzquierda, "Alt+Left"},
};

// On screens with a pair for each panel it is the caption that tells them.
constexpr std::string_view kContinuacion = "(Continuación...)";
constexpr std::string_view kPantallaAnterior = "(Pantalla Anterior...)";

Aspecto aspectoDe(const Campo& campo) {
    if (campo.def().rotulo == kContinuacion) return {{}, Dibujo::FlechaDerecha, "Alt+Right"};
    if (campo.def().rotulo == kPantallaAnterior) return {{}, Dibujo::FlechaIzquierda, "Alt+Left"};
    for (const Aspecto& aspecto : kAspectos) {
        if (campo.def().nombre.ends_with(aspecto.final)) return aspecto;
    }
    return {{}, Dibujo::Ninguno, ""};
}

template <typename Boton>
class BotonCampo final : public Boton, public Control {
  public:
    BotonCampo(Campo& campo, Anfitrion& anfitrion, const Aspecto& aspecto) : Control{campo, anfitrion} {
        this->setIcon(icono(aspecto.dibujo));
        ponAyudaYTeclas(QKeySequence{QString::fromLatin1(aspecto.atajo)});
        QObject::connect(this, &QAbstractButton::clicked, this, [this] { pulsa(); });
    }
    [[nodiscard]] QWidget& widget() override { return *this; }

  protected:
    void refrescaValor() override {
        this->setText(aQt(campo().rotulo().empty() ? campo().def().ayuda : campo().rotulo()));
        marca();
    }

    void keyPressEvent(QKeyEvent* suceso) override {
        const bool entrar = suceso->key() == Qt::Key_Return || suceso->key() == Qt::Key_Enter;
        if (!entrar) return Boton::keyPressEvent(suceso);
        if (!suceso->isAutoRepeat()) this->click();
    }

  private:
    /// One of several that stays pressed while what it chose is on view.
    void marca() {
        this->setCheckable(campo().marcado());
        this->setChecked(campo().marcado());
    }

    /// The tip tells the keys too. They act at once: a button's own shortcut would first show itself pressed
    /// for a while, in which the next keys would still fall on the field left.
    void ponAyudaYTeclas(const QKeySequence& teclas) {
        const QString ayuda = aQt(campo().def().ayuda);
        this->setToolTip(ayuda);
        if (teclas.isEmpty()) return;
        if (!ayuda.isEmpty()) {
            this->setToolTip(QStringLiteral("%1 (%2)").arg(ayuda, teclas.toString(QKeySequence::NativeText)));
        }
        auto* atajo = new QShortcut{teclas, this};
        QObject::connect(atajo, &QShortcut::activated, this, [this] { pulsaPorTeclas(); });
    }

    /// By its keys the focus only passes by: unless the button took it elsewhere it returns to the field
    /// left.
    void pulsaPorTeclas() {
        const Campo* antes = formulario().actual();
        pulsa(&Formulario::pulsaPorTeclas);
        const bool quedaAqui = formulario().actual() == &campo();
        if (antes != nullptr && quedaAqui && formulario().enPantalla(*antes)) anfitrion().enfoca(*antes);
    }

    void pulsa(bool (Formulario::*modo)(Campo&) = &Formulario::pulsa) {
        const bool libre = campo().def().sinComprobacion || anfitrion().tomaFoco(*this);
        if (libre) (formulario().*modo)(campo());
        marca();
    }
};

Control* botonDeBarra(Campo& campo, Anfitrion& anfitrion, const Aspecto& aspecto) {
    auto* boton = new BotonCampo<QToolButton>{campo, anfitrion, aspecto};
    boton->setFocusPolicy(Qt::StrongFocus);
    boton->setAutoRaise(true);
    boton->setIconSize({px(kLadoDibujo), px(kLadoDibujo)});
    boton->setMinimumSize(px(kLadoBoton), px(kLadoBoton));
    return boton;
}

Control* botonConRotulo(Campo& campo, Anfitrion& anfitrion, const Aspecto& aspecto) {
    auto* boton = new BotonCampo<QPushButton>{campo, anfitrion, aspecto};
    const bool principal = aspecto.dibujo == Dibujo::FlechaDerecha;
    boton->setAutoDefault(false);
    boton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    boton->setProperty(kPropiedadPrincipal, principal);
    boton->setProperty(kPropiedadPequeno, campo.def().pequeno);
    if (principal) {
        boton->setIcon(iconoClaro(aspecto.dibujo));
        boton->setLayoutDirection(Qt::RightToLeft);  // the arrow after the caption
    }
    return boton;
}

}  // namespace

bool esDePaso(const Campo& campo) {
    if (campo.def().clase != Clase::Boton) return false;
    const Dibujo dibujo = aspectoDe(campo).dibujo;
    return dibujo == Dibujo::FlechaDerecha || dibujo == Dibujo::FlechaIzquierda;
}

Control* nuevoBoton(Campo& campo, Anfitrion& anfitrion) {
    const Aspecto aspecto = aspectoDe(campo);
    return campo.pantalla() == kBarra ? botonDeBarra(campo, anfitrion, aspecto)
                                      : botonConRotulo(campo, anfitrion, aspecto);
}

}  // namespace orvemo
