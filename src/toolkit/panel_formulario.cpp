#include "toolkit/panel_formulario.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <algorithm>

#include "toolkit/boton_campo.h"
#include "toolkit/controles.h"
#include "toolkit/medidas.h"
#include "toolkit/paleta.h"
#include "toolkit/pinceladas.h"
#include "toolkit/rotulo_campo.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Columns of a grid of labels and fields.
constexpr int kColRotulo = 0;
constexpr int kColCampo = 1;
constexpr int kColumnasFila = 2;
// Grid columns of one column of pairs: label, field and the gap to the next.
constexpr int kColHueco = 2;
constexpr int kColumnasPar = 3;

// Twips.
constexpr int kHuecoColumnas = 210;
constexpr int kHuecoBloques = 105;
constexpr int kHuecoApretado = 30;  // between the rows of a long table or of a dense panel
constexpr int kHuecoBloquesDenso = 60;
constexpr int kMargenDenso = 75;
constexpr int kBajoRotulo = 45;
constexpr int kAnchoUtil = 9120;     // of a panel
constexpr int kAnchoRotulos = 3350;  // of a column of labels, at most
constexpr int kAnchoJuntos = 5000;   // of all the columns of labels that stand side by side

constexpr std::size_t kFilasHolgadas = 12;

/// Kinds whose label stands beside them; the others bear their own text.
bool llevaRotulo(Clase clase) {
    switch (clase) {
        case Clase::Texto:
        case Clase::Resultado:
        case Clase::FechaSelector:
        case Clase::FechaEscrita:
        case Clase::Lista:
        case Clase::Opciones:
        case Clase::ListaAbierta:
        case Clase::TextoLargo:
            return true;
        default:
            return false;
    }
}

/// Kinds that take the whole width of the panel, a label of theirs above.
bool esAncha(Clase clase) {
    return clase == Clase::ListaAbierta || clase == Clase::TextoLargo || clase == Clase::Etiqueta ||
           clase == Clase::Imagen || clase == Clase::Grafica;
}

/// Kinds that take what height is left.
bool creceEnAlto(Clase clase) {
    return clase == Clase::ListaAbierta || clase == Clase::TextoLargo || clase == Clase::Grafica;
}

bool esBotonSolo(const std::vector<Campo*>& fila) {
    return fila.size() == 1 && fila.front()->def().clase == Clase::Boton && !fila.front()->def().pequeno;
}

/// The frame around a field bears its label.
bool loNombraSuGrupo(const Campo& campo) {
    return campo.def().grupo != nullptr && campo.def().grupo->titulo() == campo.rotulo();
}

bool esVeredicto(const Campo& campo) {
    return campo.def().clase == Clase::Veredicto;
}

QLabel* nuevoEncabezado(const std::string& texto) {
    auto* encabezado = new QLabel{aQt(texto)};
    encabezado->setTextFormat(Qt::PlainText);
    QPalette paleta = encabezado->palette();
    paleta.setColor(QPalette::WindowText, kColorTextoSecundario);
    encabezado->setPalette(paleta);
    return encabezado;
}

/// The headings of a table; one left blank lies under the one before it. False when there is none.
bool ponEncabezados(QGridLayout& rejilla, const DefGrupo& def) {
    const int total = static_cast<int>(def.encabezados.size());
    const auto texto = [&](int i) -> const std::string& {
        return def.encabezados[static_cast<std::size_t>(i)];
    };
    bool alguno = false;
    for (int i = 0; i < total; ++i) {
        if (texto(i).empty()) continue;
        int columnas = 1;
        while (i + columnas < total && texto(i + columnas).empty()) ++columnas;
        rejilla.addWidget(nuevoEncabezado(texto(i)), 0, i, 1, columnas);
        alguno = true;
    }
    return alguno;
}

void conservaSitio(QWidget& widget) {
    QSizePolicy politica = widget.sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(politica);
}

bool algunaCrece(const QGridLayout& rejilla) {
    for (int fila = 0; fila < rejilla.rowCount(); ++fila) {
        if (rejilla.rowStretch(fila) > 0) return true;
    }
    return false;
}

/// What the widest label of a grid asks for, seen or not.
int anchoDeRotulos(const QGridLayout& rejilla) {
    int ancho = 0;
    for (int fila = 0; fila < rejilla.rowCount(); ++fila) {
        const QLayoutItem* lugar = rejilla.itemAtPosition(fila, kColRotulo);
        const auto* rotulo = lugar == nullptr ? nullptr : qobject_cast<QLabel*>(lugar->widget());
        if (rotulo != nullptr) ancho = std::max(ancho, rotulo->sizeHint().width());
    }
    return ancho;
}

}  // namespace

/// In tables and before others a field that hides leaves its place empty: the columns must not jump while the
/// user types. The end of a row and a row of its own leave nothing.
bool PanelFormulario::conservaSuSitio(const Campo& campo) const {
    const Grupo* grupo = campo.def().grupo;
    const bool enFilas = grupo == nullptr || grupo->def().disposicion == Disposicion::Filas;
    return !esVeredicto(campo) && (!enFilas || (campo.def().mismaLinea && &campo != finDeLinea_));
}

PanelFormulario::PanelFormulario(int pantalla, Anfitrion& anfitrion) : anfitrion_{anfitrion} {
    const bool denso = anfitrion.formulario().panel(pantalla).denso;
    setProperty(kPropiedadDenso, denso);
    auto* pila = new QVBoxLayout{this};
    pila->setContentsMargins(0, 0, 0, 0);
    pila->setSpacing(px(denso ? kHuecoBloquesDenso : kHuecoBloques));
    for (const Bloque& bloque : bloques(pantalla)) {
        anchoRotulo_ = px(bloque.enFila == 1 ? kAnchoRotulos : kAnchoJuntos / bloque.enFila);
        if (bloque.grupo == nullptr) {
            agregaSueltos(bloque.filas);
        } else {
            agregaGrupo(bloque);
        }
    }
    pila->addStretch(0);
    mideRotulos();
}

// --- Blocks

/// A block is a group, at the place of its first field, or a run of fields without one.
std::vector<PanelFormulario::Bloque> PanelFormulario::bloques(int pantalla) const {
    std::vector<Bloque> todos;
    for (Campo& campo : anfitrion_.formulario().campos()) {
        if (campo.pantalla() != pantalla) continue;
        const Grupo* grupo = campo.def().grupo;
        const bool sigueLaSerie = grupo == nullptr && !todos.empty() && todos.back().grupo == nullptr;
        auto bloque = grupo != nullptr ? std::ranges::find(todos, grupo, &Bloque::grupo)
                                       : todos.end() - (sigueLaSerie ? 1 : 0);
        if (bloque == todos.end()) bloque = todos.insert(bloque, {grupo, {}});
        const bool sigueElPaso =
            esDePaso(campo) && !bloque->filas.empty() && esDePaso(*bloque->filas.back().front());
        const bool mismaFila = (campo.def().mismaLinea && !bloque->filas.empty()) || sigueElPaso;
        if (!mismaFila) bloque->filas.emplace_back();
        bloque->filas.back().push_back(&campo);
    }
    cuentaLosDeCadaFila(todos);
    return todos;
}

/// Fields without a group that are declared between two groups part them from one another no more than they
/// would anywhere else.
void PanelFormulario::cuentaLosDeCadaFila(std::vector<Bloque>& bloques) {
    std::vector<Bloque*> fila;
    for (Bloque& bloque : bloques) {
        if (bloque.grupo == nullptr) continue;
        if (!bloque.grupo->def().alLado) fila.clear();
        fila.push_back(&bloque);
        for (Bloque* junto : fila) junto->enFila = static_cast<int>(fila.size());
    }
}

/// A group stands below what is before it, or at the right of the group before it. They share the width
/// evenly, unless one needs more.
void PanelFormulario::coloca(QWidget* marco, bool alLado) {
    if (!alLado || fila_ == nullptr) {
        fila_ = new QHBoxLayout;
        fila_->setSpacing(px(kHuecoColumnas));
        static_cast<QVBoxLayout*>(layout())->addLayout(fila_);
    }
    fila_->addWidget(marco);
}

QGridLayout* PanelFormulario::nuevaRejilla(QWidget* marco) const {
    auto* rejilla = new QGridLayout{marco};
    rejilla->setHorizontalSpacing(px(kHuecoColumnas / 2));
    if (!property(kPropiedadDenso).toBool()) return rejilla;
    rejilla->setVerticalSpacing(px(kHuecoApretado));
    rejilla->setContentsMargins(px(kMargenDenso), px(kMargenDenso), px(kMargenDenso), px(kMargenDenso));
    return rejilla;
}

void PanelFormulario::agregaSueltos(const Filas& filas) {
    auto* marco = new QWidget{this};
    auto* rejilla = nuevaRejilla(marco);
    rejilla->setContentsMargins(0, 0, 0, 0);
    layout()->addWidget(marco);
    reparteEnFilas(*rejilla, filas);
    alineadas_.push_back(rejilla);
}

void PanelFormulario::agregaGrupo(const Bloque& bloque) {
    const Grupo& grupo = *bloque.grupo;
    const Filas& filas = bloque.filas;
    const DefGrupo& def = grupo.def();
    const bool conTitulo = !grupo.titulo().empty();
    QWidget* marco = conTitulo ? new QGroupBox{this} : new QWidget{this};
    marco->setObjectName(aQt(def.nombre));
    marcos_[&grupo] = marco;
    coloca(marco, def.alLado);
    auto* rejilla = nuevaRejilla(marco);
    if (!conTitulo) rejilla->setContentsMargins(0, 0, 0, 0);
    switch (def.disposicion) {
        case Disposicion::Filas:
            reparteEnFilas(*rejilla, filas);
            (conTitulo || def.alLado ? enMarco_ : alineadas_).push_back(rejilla);
            break;
        case Disposicion::Tabla:
            reparteEnTabla(*rejilla, filas, def);
            break;
        case Disposicion::Columnas:
            if (def.columnas > 1) anchoRotulo_ = px(kAnchoJuntos / def.columnas);
            reparteEnColumnas(*rejilla, filas, def.columnas);
            break;
    }
    // Beside a taller one its rows stay together at the top.
    const bool acompanado = bloque.enFila > 1 || def.disposicion != Disposicion::Filas;
    if (acompanado && !algunaCrece(*rejilla)) rejilla->setRowStretch(rejilla->rowCount(), 1);
    refresca(grupo);
}

void PanelFormulario::refresca(const Grupo& grupo) {
    const auto marco = marcos_.find(&grupo);
    if (marco == marcos_.end()) return;
    marco->second->setVisible(grupo.visible());
    if (auto* caja = qobject_cast<QGroupBox*>(marco->second)) caja->setTitle(sinMnemonico(grupo.titulo()));
}

void PanelFormulario::mideRotulos() {
    for (QGridLayout* rejilla : enMarco_) {
        rejilla->setColumnMinimumWidth(kColRotulo, anchoDeRotulos(*rejilla));
    }
    // The fields of the blocks without a frame stand all in one column.
    int ancho = 0;
    for (const QGridLayout* rejilla : alineadas_) ancho = std::max(ancho, anchoDeRotulos(*rejilla));
    for (QGridLayout* rejilla : alineadas_) rejilla->setColumnMinimumWidth(kColRotulo, ancho);
}

// --- Ways of laying out

void PanelFormulario::reparteEnFilas(QGridLayout& rejilla, const Filas& filas) {
    ponVeredictos(rejilla, filas);
    for (const Fila& campos : filas) {
        const int fila = rejilla.rowCount();
        if (esVeredicto(*campos.front())) continue;
        if (esDePaso(*campos.front())) {
            ponPasos(rejilla, fila, campos);
        } else if (esAncha(campos.front()->def().clase)) {
            ponAncha(rejilla, fila, campos);
        } else {
            ponPar(rejilla, fila, 0, campos);
        }
    }
    rejilla.setColumnStretch(kColCampo, 1);
}

void PanelFormulario::reparteEnTabla(QGridLayout& rejilla, const Filas& filas, const DefGrupo& def) {
    const bool conEncabezados = ponEncabezados(rejilla, def);
    const auto rotulo = conEncabezados ? RotuloDelPrimero::Aparte : RotuloDelPrimero::EnLinea;
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const std::size_t columna = i % static_cast<std::size_t>(def.columnas);
        const int fila = static_cast<int>(i) / def.columnas + 1;
        const std::size_t primero = controles_.size();
        if (esBotonSolo(filas[i])) {
            ponBotonAncho(rejilla, fila, static_cast<int>(columna), *filas[i].front());
        } else {
            rejilla.addLayout(enLinea(filas[i], rotulo), fila, static_cast<int>(columna));
        }
        if (columna < def.encabezados.size()) {
            controles_[primero]->ponNombreAccesible(
                QStringLiteral("%1 %2").arg(aQt(def.encabezados[columna])).arg(fila));
        }
    }
    if (filas.size() > kFilasHolgadas * static_cast<std::size_t>(def.columnas)) {
        rejilla.parentWidget()->setProperty(kPropiedadDenso, true);
        rejilla.setVerticalSpacing(px(kHuecoApretado));
    }
    const bool soloBotones = std::ranges::all_of(filas, esBotonSolo);
    if (!soloBotones) rejilla.setColumnStretch(def.columnas, 1);
}

void PanelFormulario::reparteEnColumnas(QGridLayout& rejilla, const Filas& filas, int columnas) {
    const int total = static_cast<int>(filas.size());
    const int porColumna = (total + columnas - 1) / columnas;
    for (int i = 0; i < total; ++i) {
        ponPar(rejilla, i % porColumna, i / porColumna * kColumnasPar, filas[static_cast<std::size_t>(i)]);
    }
    for (int c = 0; c + 1 < columnas; ++c) {
        rejilla.setColumnMinimumWidth(c * kColumnasPar + kColHueco, px(kHuecoColumnas));
    }
    rejilla.setColumnStretch(columnas * kColumnasPar, 1);
}

// --- Pieces

void PanelFormulario::ponPar(QGridLayout& rejilla, int fila, int columna, const Fila& campos) {
    const std::size_t primero = controles_.size();
    QLayout* linea = enLinea(campos, RotuloDelPrimero::Aparte);
    const Clase clase = campos.front()->def().clase;
    if (clase == Clase::Casilla || loNombraSuGrupo(*campos.front())) {
        rejilla.addLayout(linea, fila, columna + kColRotulo, 1, kColumnasFila);
        return;
    }
    rejilla.addLayout(linea, fila, columna + kColCampo);
    if (!llevaRotulo(clase)) return;
    // Beside several lines the label stands at the first.
    QLabel* suyo = creaRotulo(*controles_[primero], anchoRotulo_);
    const bool alPrimero = clase == Clase::Opciones;
    if (alPrimero) suyo->setContentsMargins(0, 2 * px(kAireFoco), 0, 0);
    rejilla.addWidget(suyo, fila, columna + kColRotulo, alPrimero ? Qt::AlignTop : Qt::Alignment{});
}

/// Buttons in a table are all of one width.
void PanelFormulario::ponBotonAncho(QGridLayout& rejilla, int fila, int columna, Campo& campo) {
    QWidget& boton = crea(campo).widget();
    QSizePolicy politica = boton.sizePolicy();
    politica.setHorizontalPolicy(QSizePolicy::Expanding);
    boton.setSizePolicy(politica);
    rejilla.addWidget(&boton, fila, columna);
    rejilla.setColumnStretch(columna, 1);
}

void PanelFormulario::ponAncha(QGridLayout& rejilla, int fila, const Fila& campos) {
    auto* linea = new QHBoxLayout;
    bool crece = false;
    for (Campo* campo : campos) {
        const bool esta = creceEnAlto(campo->def().clase);
        linea->addLayout(bajoSuRotulo(*campo), esta ? 1 : 0);
        crece = crece || esta;
    }
    rejilla.addLayout(linea, fila, kColRotulo, 1, kColumnasFila);
    if (!crece) return;
    rejilla.setRowStretch(fila, 1);
    auto* pila = static_cast<QVBoxLayout*>(layout());
    pila->setStretch(pila->count() - 1, 1);
}

QLayout* PanelFormulario::bajoSuRotulo(Campo& campo) {
    Control& control = crea(campo);
    auto* columna = new QVBoxLayout;
    columna->setSpacing(px(kBajoRotulo));
    if (llevaRotulo(campo.def().clase) && !campo.rotulo().empty()) {
        columna->addWidget(creaRotulo(control, px(kAnchoUtil)));
    }
    columna->addWidget(&control.widget());
    return columna;
}

/// The buttons that go back, at the left, and on, at the right.
void PanelFormulario::ponPasos(QGridLayout& rejilla, int fila, const Fila& campos) {
    auto* linea = new QHBoxLayout;
    linea->addStretch(1);
    for (Campo* campo : campos) {
        const bool atras = campo->rotulo().find("Anterior") != std::string::npos;
        linea->insertWidget(atras ? 0 : linea->count(), &crea(*campo).widget());
    }
    rejilla.addLayout(linea, fila, kColRotulo, 1, kColumnasFila);
}

void PanelFormulario::ponVeredictos(QGridLayout& rejilla, const Filas& filas) {
    auto* linea = new QHBoxLayout;
    int alto = 0;
    for (const Fila& campos : filas) {
        if (!esVeredicto(*campos.front())) continue;
        QWidget& marca = crea(*campos.front()).widget();
        alto = std::max(alto, marca.sizeHint().height());
        linea->addWidget(&marca);
    }
    linea->addStretch(1);
    linea->addStrut(alto);  // the text below does not move when the mark appears
    rejilla.addLayout(linea, 0, kColRotulo, 1, kColumnasFila);
}

QLayout* PanelFormulario::enLinea(const Fila& campos, RotuloDelPrimero rotulo) {
    auto* linea = new QHBoxLayout;
    linea->setSpacing(px(kHuecoColumnas / 2));
    finDeLinea_ = campos.back();
    for (Campo* campo : campos) {
        Control& control = crea(*campo);
        const bool rotulado = campo != campos.front() || rotulo == RotuloDelPrimero::EnLinea;
        if (rotulado && llevaRotulo(campo->def().clase) && !campo->rotulo().empty()) {
            linea->addWidget(creaRotulo(control, anchoRotulo_));
        }
        linea->addWidget(&control.widget());
    }
    linea->addStretch(1);
    return linea;
}

Control& PanelFormulario::crea(Campo& campo) {
    Control& control = *nuevoControl(campo, anfitrion_, this);
    if (conservaSuSitio(campo)) conservaSitio(control.widget());
    controles_.push_back(&control);
    return control;
}

QLabel* PanelFormulario::creaRotulo(Control& control, int anchoMaximo) {
    auto* rotulo = new RotuloCampo{anchoMaximo, this};
    if (conservaSuSitio(control.campo())) conservaSitio(*rotulo);
    rotulo->setBuddy(&control.widget());
    control.ponRotulo(rotulo);
    control.refresca();
    return rotulo;
}

}  // namespace orvemo
