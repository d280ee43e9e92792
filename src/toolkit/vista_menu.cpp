#include "toolkit/vista_menu.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <tuple>

#include "toolkit/boton_logo.h"
#include "toolkit/boton_opcion.h"
#include "toolkit/imagenes_qt.h"
#include "toolkit/manual_qt.h"
#include "toolkit/medidas.h"
#include "toolkit/paleta.h"
#include "toolkit/portada.h"
#include "toolkit/supuesto.h"
#include "toolkit/textos_qt.h"
#include "toolkit/vista_formulario.h"

namespace orvemo {

namespace {

// Twips. `MarcoFoto` takes the room between the two columns of options.
constexpr int kHuecoFoto = 165;
constexpr int kBajoCabecera = 30;
constexpr int kMargenLogo = 135;
constexpr int kLadoLogoMenu = 1005;

QRect marcoFoto() {
    constexpr Puesto kPrimera{Columna::Izquierda, 1};
    constexpr Puesto kUltima{Columna::Derecha, kFilasMenu};
    constexpr int kIzquierda = kPrimera.left() + kAnchoOpcion + kHuecoFoto;
    constexpr int kAncho = kUltima.left() - kHuecoFoto - kIzquierda;
    constexpr int kAlto = kUltima.top() + kAltoOpcion - kPrimera.top();
    return {px(kIzquierda), px(kPrimera.top()), px(kAncho), px(kAlto)};
}

bool mueve(int tecla) {
    return tecla == Qt::Key_Up || tecla == Qt::Key_Down || tecla == Qt::Key_Left || tecla == Qt::Key_Right;
}

/// Rows between two places, in the direction of the key; nothing to go to gives a negative number.
int distancia(Puesto desde, Puesto hasta, int tecla) {
    const bool mismaColumna = desde.columna == hasta.columna;
    switch (tecla) {
        case Qt::Key_Down:
            return mismaColumna ? hasta.fila - desde.fila : -1;
        case Qt::Key_Up:
            return mismaColumna ? desde.fila - hasta.fila : -1;
        case Qt::Key_Left:
            return hasta.columna < desde.columna ? std::abs(hasta.fila - desde.fila) : -1;
        default:
            return hasta.columna > desde.columna ? std::abs(hasta.fila - desde.fila) : -1;
    }
}

}  // namespace

VistaMenu::VistaMenu(const Almacen& almacen)
    : almacen_{almacen}, menu_{new Supuesto{this}}, logo_{new BotonLogo{menu_}}, foto_{new QLabel{menu_}} {
    setCentralWidget(centrado(menu_, this));
    ponTeclaDelManual(*this, almacen);
    resize(tallaDeVentana());
    logo_->setGeometry(px((kAnchoMenu - kLadoLogoMenu) / 2), px(kMargenLogo), px(kLadoLogoMenu),
                       px(kLadoLogoMenu));
    foto_->setObjectName(QStringLiteral("MenuFoto"));
    foto_->setGeometry(marcoFoto());
    foto_->setAlignment(Qt::AlignCenter);
    connect(logo_, &QAbstractButton::clicked, this, [this] { programa_->LogoOrvemo(); });
}

void VistaMenu::muestra(Programa& programa) {
    programa_ = &programa;
    ponOpciones();
    ponLogoAlAlcance();
    show();
    activateWindow();
}

void VistaMenu::ponOpciones() {
    const PlanoMenu plano = planoDelMenu(programa_->opciones());
    for (const Cabecera& cabecera : plano.cabeceras) ponCabecera(cabecera);
    for (std::size_t i = 0; i < kOpciones.size(); ++i) {
        const OpcionMenu& opcion = programa_->opciones()[i];
        auto* boton = new BotonOpcion{kOpciones[i], static_cast<int>(i), menu_};
        boton->ponPuesto(opcion.puesto, plano.top[i]);
        boton->setVisible(opcion.visible);
        boton->installEventFilter(this);
        connect(boton, &QPushButton::clicked, this, [this, boton] { programa_->Opcion(boton->indice()); });
        opciones_.push_back(boton);
    }
    // Tab goes down the left column, then down the right one, then to the logo.
    std::vector<QWidget*> orden{opciones_.begin(), opciones_.end()};
    std::ranges::sort(orden, {}, [](QWidget* widget) {
        const Puesto puesto = static_cast<BotonOpcion*>(widget)->puesto();
        return std::tuple{puesto.columna, puesto.fila};
    });
    orden.push_back(logo_);
    for (std::size_t i = 1; i < orden.size(); ++i) setTabOrder(orden[i - 1], orden[i]);
    const auto primero = std::ranges::find_if(orden, [](QWidget* widget) { return !widget->isHidden(); });
    (*primero)->setFocus();
}

/// The name of a subject, just over the first of its options.
void VistaMenu::ponCabecera(const Cabecera& cabecera) {
    auto* rotulo = new QLabel{aQt(tituloDe(cabecera.materia)), menu_};
    QPalette paleta = rotulo->palette();
    paleta.setColor(QPalette::WindowText, kColorAcento);
    rotulo->setPalette(paleta);
    rotulo->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    const Puesto sitio{cabecera.columna, 1};
    rotulo->setGeometry(px(sitio.left()), px(cabecera.top), px(kAnchoOpcion),
                        px(kAltoCabecera - kBajoCabecera));
}

// --- What the program asks

/// The menu shows the same picture, smaller: it is made while the cover is looked at.
void VistaMenu::muestraPortada(const std::string& foto, std::chrono::milliseconds duracion) {
    const QPixmap imagen = cargaImagen(almacen_, foto);
    Portada portada{imagen};
    QTimer::singleShot(0, &portada, [&] { ponFoto(imagen); });
    fotoDePortada_ = foto;
    portada.muestra(duracion);
}

void VistaMenu::cargaMenuFoto(const std::string& foto) {
    if (foto != fotoDePortada_) ponFoto(cargaImagen(almacen_, foto));
}

void VistaMenu::ponFoto(const QPixmap& imagen) {
    foto_->setPixmap(encajada(imagen, foto_->size(), devicePixelRatioF()));
}

Imagen VistaMenu::cargaLogoOrvemo(const std::string& foto) {
    const QPixmap logo = cargaImagen(almacen_, foto);
    logo_->ponImagen(encajada(logo, logo_->size(), devicePixelRatioF()));
    QApplication::setWindowIcon(QIcon{logo});
    return {foto, static_cast<double>(logo.width()), static_cast<double>(logo.height())};
}

void VistaMenu::centraMenu() {
    menu_->setFixedSize(px(kAnchoMenu), px(kAltoMenu));  // its frame keeps it in the middle
}

void VistaMenu::ponCaption(const std::string& caption) {
    setWindowTitle(aQt(caption));
}

void VistaMenu::cursorEspera(bool espera) {
    if (espera) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

/// Those that could keep a place of their own come up over the menu too: there the user is looking.
void VistaMenu::muestraModal(Formulario& pantalla, bool /*sobreElMenu*/) {
    VistaFormulario vista{pantalla, almacen_, this};
    // The frame's corner and the inner size: the two windows fall one over the other.
    vista.move(pos());
    vista.resize(size());
    vista.setWindowState(windowState() & Qt::WindowMaximized);
    vista.exec();
    activateWindow();
}

void VistaMenu::descarga() {
    close();
}

// --- The window

void VistaMenu::closeEvent(QCloseEvent* suceso) {
    if (programa_ != nullptr) programa_->alDescargar();
    suceso->accept();
    QApplication::quit();
}

void VistaMenu::changeEvent(QEvent* suceso) {
    QMainWindow::changeEvent(suceso);
    if (suceso->type() == QEvent::ActivationChange) ponLogoAlAlcance();
}

/// Without its marker file the configuration doesn't open: the keyboard passes the logo by.
void VistaMenu::ponLogoAlAlcance() {
    logo_->ponAlcanzable(almacen_.existe(kFicheroNodo));
}

// --- The keyboard

bool VistaMenu::eventFilter(QObject* objeto, QEvent* suceso) {
    auto* boton = dynamic_cast<BotonOpcion*>(objeto);
    if (boton == nullptr) return false;
    if (suceso->type() == QEvent::FocusIn) llevaALaVista(*boton);
    if (suceso->type() != QEvent::KeyPress) return false;
    return atiendeTecla(*boton, static_cast<QKeyEvent*>(suceso)->key());
}

bool VistaMenu::atiendeTecla(const BotonOpcion& boton, int tecla) {
    if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
        programa_->Opcion(boton.indice());
        return true;
    }
    if (!mueve(tecla)) return false;
    if (BotonOpcion* destino = vecino(boton, tecla)) destino->setFocus(Qt::TabFocusReason);
    return true;
}

BotonOpcion* VistaMenu::vecino(const BotonOpcion& boton, int tecla) const {
    BotonOpcion* cercano = nullptr;
    int menor = 0;
    for (BotonOpcion* otro : opciones_) {
        const int lejos = distancia(boton.puesto(), otro->puesto(), tecla);
        const bool alcanzable = otro != &boton && otro->isVisible() && lejos >= 0;
        if (!alcanzable || (cercano != nullptr && lejos >= menor)) continue;
        cercano = otro;
        menor = lejos;
    }
    return cercano;
}

}  // namespace orvemo
