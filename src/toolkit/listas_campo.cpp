#include "toolkit/listas_campo.h"

#include <QAbstractItemView>
#include <QWheelEvent>
#include <algorithm>

#include "toolkit/medidas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Characters.
constexpr int kAnchuraMinima = 6;
constexpr int kAnchuraMaxima = 44;
constexpr int kAnchuraEstrecha = 20;

constexpr int kFilasMinimas = 3;  // lines of text of a list box

constexpr int kMargenDeLista = 120;  // twips beside the widest entry when the list drops down

QStringList textos(const std::vector<std::string>& opciones) {
    QStringList lista;
    for (const std::string& opcion : opciones) lista << aQt(opcion);
    return lista;
}

int masLarga(const QStringList& opciones) {
    qsizetype largo = 0;
    for (const QString& opcion : opciones) largo = std::max(largo, opcion.trimmed().size());
    return static_cast<int>(largo);
}

}  // namespace

// --- Drop-down list

ListaCampo::ListaCampo(Campo& campo, Anfitrion& anfitrion) : Control{campo, anfitrion} {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(this, &QComboBox::activated, this, [this](int indice) {
        if (this->anfitrion().tomaFoco(*this)) {
            formulario().elige(this->campo(), indice);
        } else {
            refrescaValor();
        }
    });
}

QSize ListaCampo::minimumSizeHint() const {
    const QSize talla = sizeHint();
    return {std::min(talla.width(), fontMetrics().averageCharWidth() * kAnchuraEstrecha), talla.height()};
}

void ListaCampo::refrescaValor() {
    if (opciones_ != campo().opciones()) {
        opciones_ = campo().opciones();
        const QStringList lista = textos(opciones_);
        const int anchura = campo().def().anchura > 0 ? campo().def().anchura : masLarga(lista);
        clear();
        addItems(lista);
        setMinimumContentsLength(std::clamp(anchura, kAnchuraMinima, kAnchuraMaxima));
        view()->setMinimumWidth(view()->sizeHintForColumn(0) + px(2 * kMargenDeLista));
    }
    setCurrentIndex(campo().indice());
}

void ListaCampo::wheelEvent(QWheelEvent* suceso) {
    if (hasFocus()) {
        QComboBox::wheelEvent(suceso);
    } else {
        suceso->ignore();  // the panel scrolls
    }
}

// --- List box

ListaAbiertaCampo::ListaAbiertaCampo(Campo& campo, Anfitrion& anfitrion) : Control{campo, anfitrion} {
    alElegir = [this](int indice) { elige(indice); };
    alAceptar = [this] { formulario().doblePulsa(this->campo()); };
}

QSize ListaAbiertaCampo::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * kAnchuraEstrecha, fontMetrics().height() * kFilasMinimas};
}

void ListaAbiertaCampo::elige(int indice) {
    if (anfitrion().tomaFoco(*this)) {
        formulario().elige(campo(), indice);
    } else {
        refrescaValor();
    }
}

}  // namespace orvemo
