#include "toolkit/vista_dialogos.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "foundations/values/textos.h"
#include "toolkit/iconos.h"
#include "toolkit/lista_textos.h"
#include "toolkit/medidas.h"
#include "toolkit/pinceladas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Twips.
constexpr int kAncho = 6600;
constexpr int kAlto = 4800;
constexpr int kMargen = 240;
constexpr int kHueco = 90;

/// A button whose tip is also its caption.
template <typename Accion>
QPushButton* nuevoBoton(QWidget* padre, const char* nombre, const char* ayuda, Dibujo dibujo, Accion accion) {
    auto* boton = new QPushButton{icono(dibujo), aQt(ayuda).trimmed(), padre};
    boton->setObjectName(QLatin1String{nombre});
    boton->setToolTip(aQt(ayuda));
    boton->setAutoDefault(true);  // with the focus, Enter presses it
    QObject::connect(boton, &QPushButton::clicked, padre, accion);
    return boton;
}

void hazPrincipal(QPushButton& boton, Dibujo dibujo) {
    boton.setProperty(kPropiedadPrincipal, true);
    boton.setIcon(iconoClaro(dibujo));
}

std::vector<std::string> nombres(const std::vector<EntradaSupuesto>& entradas) {
    std::vector<std::string> lista;
    lista.reserve(entradas.size());
    for (const EntradaSupuesto& entrada : entradas) lista.push_back(ControlesALaVista(entrada.nombre));
    return lista;
}

}  // namespace

// --- Both

VistaSupuestos::VistaSupuestos(DialogoSupuestos& dialogo, const QString& titulo, QWidget* padre)
    : QDialog{padre}, dialogo_{dialogo}, columna_{new QVBoxLayout{this}}, lista_{new ListaTextos{this}} {
    setWindowTitle(titulo);
    columna_->setContentsMargins(px(kMargen), px(kMargen), px(kMargen), px(kMargen));
    columna_->setSpacing(px(kHueco));
    lista_->setObjectName(QStringLiteral("ListaSupuestos"));
    lista_->alElegir = [this](int entrada) { dialogo_.selecciona(entrada); };
    lista_->alBorrar = [this] { dialogo_.BotonBorrar(); };
    dialogo_.alCambiar = [this] { refresca(); };
    resize(px(kAncho), px(kAlto));
}

VistaSupuestos::~VistaSupuestos() {
    dialogo_.alCambiar = nullptr;
}

void VistaSupuestos::refresca() {
    lista_->muestra(nombres(dialogo_.ListaSupuestos()), dialogo_.seleccion());
    for (QPushButton* boton : deLoElegido_) boton->setEnabled(dialogo_.seleccion() >= 0);
    if (dialogo_.oculto()) hide();
}

void VistaSupuestos::reject() {
    dialogo_.BotonCancelar();
}

void VistaSupuestos::closeEvent(QCloseEvent* suceso) {
    suceso->ignore();
    dialogo_.cierra();
}

void VistaSupuestos::agregaLista() {
    auto* rotulo = new QLabel{QStringLiteral("Supuestos existentes en la base de datos"), this};
    rotulo->setBuddy(lista_);
    lista_->setAccessibleName(rotulo->text());
    columna_->addWidget(rotulo);
    columna_->addWidget(lista_, 1);
}

void VistaSupuestos::agregaBotones(QPushButton* borrar, QPushButton* cancelar, QPushButton* principal) {
    deLoElegido_.push_back(borrar);
    auto* botones = new QHBoxLayout;
    botones->addWidget(borrar);
    botones->addStretch(1);
    botones->addWidget(cancelar);
    botones->addWidget(principal);
    columna_->addSpacing(px(kHueco));
    columna_->addLayout(botones);
}

// --- Saving

VistaGrabaSupuesto::VistaGrabaSupuesto(GrabaSupuesto& dialogo, QWidget* padre)
    : VistaSupuestos{dialogo, QStringLiteral("Grabación de supuestos"), padre},
      dialogo_{dialogo},
      nombre_{new QLineEdit{this}},
      grabar_{nuevoBoton(this, "BotonGrabar", "Confirma grabación", Dibujo::Disco,
                         [this] { dialogo_.BotonGrabar(); })} {
    auto* rotulo = new QLabel{QStringLiteral("Nombre del supuesto a grabar:"), this};
    rotulo->setBuddy(nombre_);
    nombre_->setObjectName(QStringLiteral("Nombre"));
    nombre_->setTextMargins(px(kRellenoCampo), 0, px(kRellenoCampo), 0);
    nombre_->setMaxLength(static_cast<int>(GrabaSupuesto::kMaximoNombre));
    columna().addWidget(rotulo);
    columna().addWidget(nombre_);
    columna().addSpacing(px(kHueco));
    agregaLista();
    setTabOrder(nombre_, &lista());
    agregaBotones(nuevoBoton(this, "BotonBorrar", "Borra supuesto seleccionado", Dibujo::Papelera,
                             [this] { dialogo_.BotonBorrar(); }),
                  nuevoBoton(this, "BotonCancelar", "Cancela grabación", Dibujo::Aspa,
                             [this] { dialogo_.BotonCancelar(); }),
                  grabar_);
    hazPrincipal(*grabar_, Dibujo::Disco);
    grabar_->setDefault(true);
    connect(nombre_, &QLineEdit::textChanged, this,
            [this](const QString& texto) { dialogo_.ponNombre(deQt(texto)); });
    connect(&lista(), &QListWidget::itemClicked, this, &VistaGrabaSupuesto::eligeConElRaton);
    refresca();
    nombre_->setFocus();
    nombre_->selectAll();
}

/// A click copies the name even of the entry that is already chosen, and goes on in the name.
void VistaGrabaSupuesto::eligeConElRaton() {
    dialogo_.selecciona(lista().currentRow());
    nombre_->setFocus();
}

void VistaGrabaSupuesto::refresca() {
    VistaSupuestos::refresca();
    const QString nombre = aQt(dialogo_.Nombre());
    if (nombre_->text() != nombre) nombre_->setText(nombre);
    grabar_->setEnabled(dialogo_.puedeGrabar());
}

// --- Loading

VistaCargaSupuesto::VistaCargaSupuesto(CargaSupuesto& dialogo, QWidget* padre)
    : VistaSupuestos{dialogo, QStringLiteral("Carga de supuestos"), padre} {
    agregaLista();
    auto* cargar = nuevoBoton(this, "BotonCargar", "Carga el supuesto ", Dibujo::Carpeta,
                              [&dialogo] { dialogo.BotonCargar(); });
    hazPrincipal(*cargar, Dibujo::Carpeta);
    agregaBotones(nuevoBoton(this, "BotonBorrar", "Borra el supuesto", Dibujo::Papelera,
                             [&dialogo] { dialogo.BotonBorrar(); }),
                  nuevoBoton(this, "BotonCancelar", "Cancela lectura", Dibujo::Aspa,
                             [&dialogo] { dialogo.BotonCancelar(); }),
                  cargar);
    deLoElegido().push_back(cargar);
    lista().alAceptar = [&dialogo] { dialogo.BotonCargar(); };
    dialogo.selecciona(0);  // that of an empty list is none
    lista().setFocus();
}

}  // namespace orvemo
