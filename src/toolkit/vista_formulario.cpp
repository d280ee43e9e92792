#include "toolkit/vista_formulario.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QStackedWidget>
#include <utility>

#include "toolkit/controles.h"
#include "toolkit/imagenes_qt.h"
#include "toolkit/manual_qt.h"
#include "toolkit/medidas.h"
#include "toolkit/paleta.h"
#include "toolkit/supuesto.h"
#include "toolkit/textos_qt.h"
#include "toolkit/vista_dialogos.h"

namespace orvemo {

namespace {

constexpr double kCuerpoTitulo = 1.3;  // of the letters of the screen

// Twips.
constexpr int kMargenSupuesto = 240;
constexpr int kHuecoCabecera = 180;

QLabel* nuevoTitulo(QWidget* padre, QColor color, double cuerpo, bool negrita) {
    auto* titulo = new QLabel{padre};
    titulo->setTextFormat(Qt::PlainText);
    QFont letra = titulo->font();
    letra.setPointSizeF(letra.pointSizeF() * cuerpo);
    letra.setBold(negrita);
    titulo->setFont(letra);
    QPalette paleta = titulo->palette();
    paleta.setColor(QPalette::WindowText, color);
    titulo->setPalette(paleta);
    return titulo;
}

QFrame* nuevaRaya() {
    auto* raya = new QFrame;
    raya->setFixedHeight(1);
    raya->setAutoFillBackground(true);
    QPalette paleta = raya->palette();
    paleta.setColor(QPalette::Window, kColorBorde);
    raya->setPalette(paleta);
    return raya;
}

/// A page that scrolls where its panel is larger.
QScrollArea* nuevaPagina() {
    auto* pagina = new QScrollArea;
    pagina->setFrameShape(QFrame::NoFrame);
    pagina->setFocusPolicy(Qt::NoFocus);
    pagina->setWidgetResizable(true);
    return pagina;
}

}  // namespace

VistaFormulario::VistaFormulario(Formulario& formulario, const Almacen& almacen, QWidget* padre)
    : QDialog{padre, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                         Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint},
      formulario_{formulario},
      almacen_{almacen},
      guardia_{*this, formulario},
      titulo_{nuevoTitulo(this, kColorAcento, kCuerpoTitulo, true)},
      subtitulo_{nuevoTitulo(this, kColorTextoSecundario, 1, false)},
      pila_{new QStackedWidget{this}} {
    QWidget* logo = nuevoLogo();
    for (int i = 0; i < formulario.numPantallas(); ++i) pila_->addWidget(nuevaPagina());

    auto* supuesto = new Supuesto{this};
    auto* columna = new QVBoxLayout{supuesto};
    columna->setContentsMargins(px(kMargenSupuesto), px(kMargenSupuesto), px(kMargenSupuesto),
                                px(kMargenSupuesto));
    columna->setSpacing(px(kHuecoCabecera));
    columna->addLayout(cabecera(logo));
    columna->addWidget(nuevaRaya());
    columna->addWidget(pila_, 1);
    columna->addLayout(fila(kPie));

    auto* ventana = new QVBoxLayout{this};
    ventana->setContentsMargins(0, 0, 0, 0);
    ventana->addWidget(centrado(supuesto, this));
    resize(tallaDeVentana());

    ponTeclaDelManual(*this, almacen);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* ahora) { acompana(ahora); });
    formulario_.ponVista(this);
    refrescaTitulos();
    muestraPantalla(formulario_.PantallaActual());
    if (formulario_.actual() != nullptr) enfoca(*formulario_.actual());
}

VistaFormulario::~VistaFormulario() {
    // The window is hidden last of all, when nothing of this is left to go with the focus.
    disconnect(qApp, nullptr, this, nullptr);
    formulario_.ponVista(nullptr);
}

// --- Building

QLayout* VistaFormulario::cabecera(QWidget* logo) {
    auto* titulos = new QVBoxLayout;
    titulos->setSpacing(0);
    titulos->addStretch(1);
    titulos->addWidget(titulo_);
    titulos->addWidget(subtitulo_);
    titulos->addStretch(1);
    auto* cabecera = new QHBoxLayout;
    cabecera->setSpacing(px(kHuecoCabecera));
    cabecera->addWidget(logo);
    cabecera->addLayout(titulos, 1);
    cabecera->addLayout(fila(kBarra));
    return cabecera;
}

QWidget* VistaFormulario::nuevoLogo() {
    // Some screens declare it; on the calculators it goes without saying.
    for (Campo& campo : formulario_.campos()) {
        if (campo.pantalla() != kBarra || campo.def().clase != Clase::Imagen) continue;
        controles_[&campo] = nuevoControl(campo, *this, this);
        return &controles_[&campo]->widget();
    }
    auto* logo = new QLabel{this};
    logo->setObjectName(QStringLiteral("LogoOrvemo"));
    logo->setPixmap(encajada(imagen("logo.bmp"), {px(kLadoLogo), px(kLadoLogo)}, devicePixelRatioF()));
    return logo;
}

/// The buttons of the bar or of the foot; the last of the foot stands at the right.
QLayout* VistaFormulario::fila(int pantalla) {
    auto* linea = new QHBoxLayout;
    if (pantalla == kBarra) linea->setSpacing(0);
    for (Campo& campo : formulario_.campos()) {
        if (campo.pantalla() != pantalla || campo.def().clase == Clase::Imagen) continue;
        Control* boton = nuevoControl(campo, *this, this);
        controles_[&campo] = boton;
        linea->addWidget(&boton->widget());
        if (pantalla == kPie && linea->count() == 1) linea->addStretch(1);
    }
    return linea;
}

void VistaFormulario::construye(int pantalla) {
    if (paneles_.contains(pantalla) || pantalla < 0) return;
    auto* panel = new PanelFormulario{pantalla, *this};
    paneles_[pantalla] = panel;
    for (Control* control : panel->controles()) controles_[&control->campo()] = control;
    static_cast<QScrollArea*>(pila_->widget(pantalla))->setWidget(panel);
    encadenaTabulador();
}

void VistaFormulario::descarta(int pantalla) {
    const auto panel = paneles_.find(pantalla);
    if (panel == paneles_.end()) return;
    std::erase_if(controles_,
                  [&](const auto& par) { return panel->second->isAncestorOf(&par.second->widget()); });
    // Its widgets may be on the way here themselves.
    static_cast<QScrollArea*>(pila_->widget(pantalla))->takeWidget()->deleteLater();
    paneles_.erase(panel);
}

/// Fields, panel after panel, then the foot, then the bar.
void VistaFormulario::encadenaTabulador() {
    QWidget* anterior = nullptr;
    const auto sigue = [&](QWidget& widget) {
        if (anterior != nullptr) setTabOrder(anterior, &widget);
        anterior = &widget;
    };
    for (const auto& [pantalla, panel] : paneles_) {
        for (Control* control : panel->controles()) sigue(control->widget());
    }
    for (const int pantalla : {kPie, kBarra}) {
        for (const Campo& campo : formulario_.campos()) {
            if (campo.pantalla() == pantalla) sigue(controles_.at(&campo)->widget());
        }
    }
}

Control* VistaFormulario::control(const Campo& campo) const {
    const auto encontrado = controles_.find(&campo);
    return encontrado == controles_.end() ? nullptr : encontrado->second;
}

QPixmap VistaFormulario::imagen(const std::string& nombre) const {
    return cargaImagen(almacen_, nombre);
}

// --- What the form asks

void VistaFormulario::refresca(const Campo& campo) {
    Control* suyo = control(campo);
    if (suyo == nullptr) return;
    const bool otroRotulo = suyo->rotulo() != nullptr && suyo->rotulo()->text() != aQt(campo.rotulo());
    suyo->refresca();
    if (otroRotulo) paneles_.at(campo.pantalla())->mideRotulos();
}

void VistaFormulario::refresca(const Grupo& grupo) {
    for (const auto& [pantalla, panel] : paneles_) panel->refresca(grupo);
}

void VistaFormulario::refrescaTitulos() {
    setWindowTitle(aQt(formulario_.Caption()));
    titulo_->setText(aQt(formulario_.Titulo()));
    subtitulo_->setText(aQt(formulario_.Subtitulo()));
    subtitulo_->setVisible(!formulario_.Subtitulo().empty());
}

void VistaFormulario::reconstruye(int pantalla) {
    if (!paneles_.contains(pantalla)) return;
    if (pantalla != formulario_.PantallaActual()) return descarta(pantalla);
    // The panel on view is made anew once for all the fields that are moving.
    if (!caducadas_.insert(pantalla).second) return;
    QMetaObject::invokeMethod(this, &VistaFormulario::rehaz, Qt::QueuedConnection);
}

void VistaFormulario::rehaz() {
    if (caducadas_.empty()) return;
    muestraPantalla(formulario_.PantallaActual());
    const Campo* actual = formulario_.actual();
    if (actual != nullptr && formulario_.enPantalla(*actual)) enfoca(*actual);
}

void VistaFormulario::muestraPantalla(int pantalla) {
    for (const int caducada : std::exchange(caducadas_, {})) descarta(caducada);
    construye(pantalla);
    pila_->setCurrentIndex(pantalla);
}

void VistaFormulario::enfoca(const Campo& campo) {
    construye(campo.pantalla());
    if (Control* suyo = control(campo)) suyo->enfoca();
}

/// Brings what got the focus into view, its label too where there is room for both.
void VistaFormulario::acompana(QWidget* enfocado) {
    Control* suyo = enfocado == nullptr || enfocado->window() != this ? nullptr : controlDe(enfocado);
    if (suyo == nullptr) return;
    if (suyo->rotulo() != nullptr) llevaALaVista(*suyo->rotulo());
    llevaALaVista(suyo->widget());
}

void VistaFormulario::oculta() {
    hide();
}

void VistaFormulario::muestraModal(GrabaSupuesto& dialogo) {
    VistaGrabaSupuesto{dialogo, this}.exec();
    activateWindow();
}

void VistaFormulario::muestraModal(CargaSupuesto& dialogo) {
    VistaCargaSupuesto{dialogo, this}.exec();
    activateWindow();
}

void VistaFormulario::muestraModal(Formulario& formulario) {
    VistaFormulario vista{formulario, almacen_, this};
    vista.move(pos());
    vista.resize(size());
    vista.exec();
    activateWindow();
}

// --- The window

void VistaFormulario::closeEvent(QCloseEvent* suceso) {
    suceso->ignore();
    formulario_.cierra();
}

}  // namespace orvemo
