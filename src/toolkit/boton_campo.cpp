#include "toolkit/boton_campo.h"

#include <QKeySequence>
#include <QPushButton>
#include <QToolButton>
#include <array>
#include <string_view>

#include "toolkit/estilo.h"
#include "toolkit/iconos.h"
#include "toolkit/medidas.h"
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
    Aspecto{"Anterior", Dibujo::FlechaIzquierda, "Alt+Left"},
};

Aspecto aspectoDe(const Campo& campo) {
    for (const Aspecto& aspecto : kAspectos) {
        if (campo.def().nombre.ends_with(aspecto.final)) return aspecto;
    }
    return {{}, Dibujo::Ninguno, ""};
}

template <typename Boton>
class BotonCampo final : public Boton, public Control {
  public:
    BotonCampo(Campo& campo, Anfitrion& anfitrion, const Aspecto& aspecto)
        : Control{campo, anfitrion}, atajo_{QString::fromLatin1(aspecto.atajo)} {
        this->setIcon(icono(aspecto.dibujo));
        this->setToolTip(ayudaConTeclas());
        QObject::connect(this, &QAbstractButton::clicked, this, [this] { pulsa(); });
    }
    [[nodiscard]] QWidget& widget() override { return *this; }

  protected:
    void refrescaValor() override {
        this->setText(aQt(campo().rotulo().empty() ? campo().def().ayuda : campo().rotulo()));
        // A new caption takes the keys away, for a mnemonic or for none.
        if (!atajo_.isEmpty()) this->setShortcut(atajo_);
    }

  private:
    [[nodiscard]] QString ayudaConTeclas() const {
        const QString ayuda = aQt(campo().def().ayuda);
        if (ayuda.isEmpty() || atajo_.isEmpty()) return ayuda;
        return QStringLiteral("%1 (%2)").arg(ayuda, atajo_.toString(QKeySequence::NativeText));
    }

    void pulsa() {
        const bool libre = campo().def().sinComprobacion || anfitrion().tomaFoco(*this);
        if (libre) formulario().pulsa(campo());
    }

    QKeySequence atajo_;
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
    const bool principal = campo.pantalla() == kPie && aspecto.dibujo == Dibujo::FlechaDerecha;
    boton->setAutoDefault(false);
    boton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    boton->setProperty(kPropiedadPrincipal, principal);
    if (principal) {
        boton->setIcon(iconoClaro(aspecto.dibujo));
        boton->setLayoutDirection(Qt::RightToLeft);  // the arrow after the caption
    }
    return boton;
}

}  // namespace

Control* nuevoBoton(Campo& campo, Anfitrion& anfitrion) {
    const Aspecto aspecto = aspectoDe(campo);
    return campo.pantalla() == kBarra ? botonDeBarra(campo, anfitrion, aspecto)
                                      : botonConRotulo(campo, anfitrion, aspecto);
}

}  // namespace orvemo
