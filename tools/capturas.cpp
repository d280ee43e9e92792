// Takes the pictures of the documentation: capturas DATA_DIRECTORY PICTURE_DIRECTORY SUFFIX
//
// The program runs as ever, on one fixed day and a screen of one size, but nobody sees it: its windows are
// painted into files. It writes cases into the data directory, and what it prints, informe.pdf and
// recibo.pdf, beside the pictures.
#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "catalogue/catalogo.h"
#include "shell/pantallas.h"
#include "shell/programa.h"
#include "toolkit/aplicacion.h"
#include "toolkit/impresora_pdf.h"
#include "toolkit/instalacion.h"
#include "toolkit/medidas.h"
#include "toolkit/mensajes_qt.h"
#include "toolkit/paleta.h"
#include "toolkit/textos_qt.h"
#include "toolkit/vista_menu.h"

namespace {

using namespace orvemo;

constexpr int kUsoIncorrecto = 2;
constexpr QSize kPantalla{1366, 768};
constexpr int kDesempleo = 5;  // options of the menu
constexpr int kNominas = 9;
constexpr int kPaso = 80;               // milliseconds, for the windows to settle
constexpr QColor kVelo{0, 0, 0, 0x30};  // over the window behind a dialog

/// The day on which the pictures are taken.
class RelojDeCapturas final : public Reloj {
  public:
    [[nodiscard]] Fecha hoy() const override { return FechaDMA(31, 10, 2005); }
};

/// Writes the menu at once: the cover's second makes no picture.
class MenuSinPortada final : public VistaPrograma {
  public:
    explicit MenuSinPortada(VistaMenu& menu) : menu_{menu} {}
    void muestraPortada(const std::string&, std::chrono::milliseconds) override {}
    void cargaMenuFoto(const std::string& foto) override { menu_.cargaMenuFoto(foto); }
    Imagen cargaLogoOrvemo(const std::string& foto) override { return menu_.cargaLogoOrvemo(foto); }
    void centraMenu() override { menu_.centraMenu(); }
    void ponCaption(const std::string& caption) override { menu_.ponCaption(caption); }
    void cursorEspera(bool espera) override { menu_.cursorEspera(espera); }
    void muestraModal(Formulario& pantalla, bool sobre) override { menu_.muestraModal(pantalla, sobre); }
    void descarga() override { menu_.descarga(); }

  private:
    VistaMenu& menu_;
};

QWidget& ventana() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) throw std::runtime_error{"no window is open"};
    return *modal;
}

void pulsa(const char* boton) {
    auto* encontrado = ventana().findChild<QAbstractButton*>(QLatin1String{boton});
    if (encontrado == nullptr) throw std::runtime_error{std::string{"there is no button "} + boton};
    encontrado->click();
}

void teclea(Qt::Key tecla) {
    QKeyEvent pulsada{QEvent::KeyPress, tecla, Qt::NoModifier};
    QApplication::sendEvent(ventana().focusWidget(), &pulsada);
}

void escribe(const char* campo, const char* texto) {
    auto* linea = ventana().findChild<QLineEdit*>(QLatin1String{campo});
    if (linea == nullptr) throw std::runtime_error{std::string{"there is no field "} + campo};
    linea->setText(aQt(texto));
}

/// A window as it is, or a dialog over the window behind it.
QPixmap pintada(QWidget& modal, bool dialogo) {
    if (!dialogo) return modal.grab();
    QPixmap lienzo = modal.parentWidget()->window()->grab();
    const QPixmap encima = modal.grab();
    QPainter pincel{&lienzo};
    const QSizeF fondo = lienzo.deviceIndependentSize();
    const QSizeF talla = encima.deviceIndependentSize();
    pincel.fillRect(QRectF{{0, 0}, fondo}, kVelo);
    const QRectF sitio{{(fondo.width() - talla.width()) / 2, (fondo.height() - talla.height()) / 2}, talla};
    pincel.drawPixmap(sitio.topLeft(), encima);
    pincel.setPen(kColorBordeControl);
    pincel.drawRect(sitio);
    return lienzo;
}

/// The picture in its commonest colours: nobody sees the difference, and it takes half the bytes.
QImage conPocosColores(const QImage& imagen) {
    constexpr std::size_t kColores = 256;
    std::map<QRgb, int> veces;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) ++veces[imagen.pixel(x, y)];
    std::vector<std::pair<int, QRgb>> colores;
    for (const auto& [color, cuantas] : veces) colores.emplace_back(cuantas, color);
    std::ranges::sort(colores, std::greater{});
    QList<QRgb> tabla;
    for (std::size_t i = 0; i < std::min(kColores, colores.size()); ++i) tabla << colores[i].second;
    return imagen.convertToFormat(QImage::Format_Indexed8, tabla);
}

class Sesion {
  public:
    Sesion(VistaMenu& menu, Programa& programa, ImpresoraPdf& impresora, QString carpeta, QString sufijo)
        : menu_{menu},
          programa_{programa},
          impresora_{impresora},
          carpeta_{std::move(carpeta)},
          sufijo_{std::move(sufijo)} {}

    /// Goes through the program step by step; each begins once the windows of the one before have settled.
    void sigue(std::size_t paso = 0) {
        if (paso == pasos_.size()) return;
        QTimer::singleShot(kPaso, &menu_, [this, paso] {
            sigue(paso + 1);  // a step may open a window and come back only when that closes
            pasos_[paso]();
        });
    }

  private:
    void captura(const char* nombre, const QPixmap& imagen) const {
        const QString fichero =
            carpeta_ + QLatin1Char('/') + QLatin1String{nombre} + sufijo_ + QStringLiteral(".png");
        if (!conPocosColores(imagen.toImage()).save(fichero))
            throw std::runtime_error{"cannot write " + deQt(fichero)};
    }

    /// The next document goes into that file beside the pictures.
    void imprimeEn(const char* nombre) const {
        impresora_.ponRuta(deQt(carpeta_ + QLatin1Char('/') + QLatin1String{nombre}));
    }

    VistaMenu& menu_;
    Programa& programa_;
    ImpresoraPdf& impresora_;
    QString carpeta_;
    QString sufijo_;
    std::vector<std::function<void()>> pasos_{
        [this] { captura("menu", menu_.grab()); },
        [this] { programa_.Opcion(kDesempleo); },
        [] { pulsa("BotonCarga"); },
        [this] { captura("cargar", pintada(ventana(), true)); },
        [] { teclea(Qt::Key_Return); },
        [this] { captura("desempleo-datos", pintada(ventana(), false)); },
        [] { pulsa("Siguiente"); },
        [this] { captura("desempleo-conclusiones", pintada(ventana(), false)); },
        [] { pulsa("BotonGraba"); },
        [this] { captura("grabar", pintada(ventana(), true)); },
        [] { pulsa("BotonCancelar"); },
        [this] { imprimeEn("informe.pdf"); },
        [] { pulsa("BotonPrint"); },
        [] { pulsa("BotonExit"); },
        // A month with sick leave, the last of the examples by name, and a dismissal, the second.
        [this] { programa_.Opcion(kNominas); },
        [] { pulsa("NomiBotonCarga"); },
        [] { teclea(Qt::Key_End); },
        [] { teclea(Qt::Key_Return); },
        [this] { captura("nomina-contrato", pintada(ventana(), false)); },
        [] { pulsa("NomiSig0"); },
        [] { pulsa("NomiSig1"); },
        [this] { captura("nomina-recibo", pintada(ventana(), false)); },
        [] { pulsa("NomiBotonPrint"); },
        [] {
            escribe("DatosEmpresa", "Talleres del Norte, S.L.");
            escribe("DatosDomicilio", "Calle Mayor, 1. 28013 Madrid");
            escribe("DatosCif", "B-12345678");
            escribe("DatosCuentaSS", "28/123456789");
            escribe("NomiNIF", "00000001R");
            escribe("NomiNumMatricula", "12");
            escribe("NomiCuentaSS", "28/1234567890");
            escribe("NomiGrupoProfesional", "Auxiliar administrativa");
        },
        [this] { imprimeEn("recibo.pdf"); },
        [] { pulsa("ImpresionImprime"); },
        [] { pulsa("NomiBotonCarga"); },
        [] { teclea(Qt::Key_Home); },
        [] { teclea(Qt::Key_Down); },
        [] { teclea(Qt::Key_Return); },
        [] { pulsa("NomiSig0"); },
        [this] { captura("nomina-finiquito", pintada(ventana(), false)); },
        [] { pulsa("NomiBotonExit"); },
        [] { QApplication::quit(); },
    };
};

/// Messages would wait for ever for an answer.
class MensajesEnTerminal final : public Mensajes {
  public:
    bool Confirma(std::string_view texto) override { return dice(texto); }
    void Informa(std::string_view texto) override { dice(texto); }
    void ComunicaError(std::string_view texto) override { dice(texto); }

  private:
    static bool dice(std::string_view texto) {
        std::printf("%.*s\n", static_cast<int>(texto.size()), texto.data());
        return true;
    }
};

int ejecuta(Aplicacion& aplicacion, Mensajes& mensajes, const QStringList& argumentos) {
    instalaEstilo(aplicacion, kPantalla);
    DirectorioAplicacion almacen{deQt(argumentos[1])};
    const RelojDeCapturas reloj;
    ImpresoraPdf impresora{almacen};
    RutinasImpresion rutinas;
    ValoresPrograma valores;
    Entorno entorno{mensajes, reloj, almacen, impresora, rutinas, valores};
    VistaMenu menu{almacen};
    MenuSinPortada vista{menu};
    Programa programa{entorno, PantallasDelMenu(CalculadorasDelPrograma()), vista};
    programa.Inicia();
    menu.muestra(programa);
    Sesion sesion{menu, programa, impresora, argumentos[2], argumentos.value(3)};
    sesion.sigue();
    return aplicacion.exec();
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    MensajesEnTerminal mensajes;
    Aplicacion aplicacion{argc, argv, mensajes};
    const QStringList argumentos = QApplication::arguments();
    if (argumentos.size() < 3) {
        std::fputs("capturas DATA_DIRECTORY PICTURE_DIRECTORY [SUFFIX]\n", stderr);
        return kUsoIncorrecto;
    }
    try {
        return ejecuta(aplicacion, mensajes, argumentos);
    } catch (const std::exception& fallo) {
        std::fprintf(stderr, "capturas: %s\n", fallo.what());
        return 1;
    }
}
