#include "toolkit/opciones_campo.h"

#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QVBoxLayout>
#include <algorithm>

#include "toolkit/medidas.h"
#include "toolkit/pinceladas.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Twips of the widest line.
constexpr int kAnchoConRotulo = 5800;
constexpr int kAnchoSinRotulo = 8400;

class BotonRedondo final : public QRadioButton {
  public:
    BotonRedondo(const QString& texto, int anchoMaximo, QWidget* padre)
        : QRadioButton{texto, padre}, anchoMaximo_{anchoMaximo} {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    [[nodiscard]] QSize sizeHint() const override {
        return tallaDeMarca(fontMetrics(), text(), anchoMaximo_);
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* /*suceso*/) override {
        QStyleOptionButton opcion;
        initStyleOption(&opcion);
        QPainter pincel{this};
        pintaMarcaConTexto(pincel, opcion, pintaRedonda);
    }
    [[nodiscard]] bool hitButton(const QPoint& punto) const override { return rect().contains(punto); }

  private:
    int anchoMaximo_;
};

}  // namespace

OpcionesCampo::OpcionesCampo(Campo& campo, Anfitrion& anfitrion) : Control{campo, anfitrion} {
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void OpcionesCampo::refrescaValor() {
    if (opciones_ != campo().opciones()) rehace();
    const int elegida = campo().indice();
    for (int i = 0; i < static_cast<int>(botones_.size()); ++i) {
        QRadioButton& boton = *botones_[static_cast<std::size_t>(i)];
        // One of an exclusive group can't be let go while the others hold on to it.
        boton.setAutoExclusive(false);
        boton.setChecked(i == elegida);
        boton.setAutoExclusive(true);
    }
    const auto conFoco = static_cast<std::size_t>(std::max(elegida, 0));
    setFocusProxy(conFoco < botones_.size() ? botones_[conFoco] : nullptr);
}

void OpcionesCampo::rehace() {
    for (QRadioButton* boton : botones_) delete boton;
    botones_.clear();
    opciones_ = campo().opciones();
    const int ancho = anchoDeLinea();
    for (const std::string& opcion : opciones_) {
        auto* boton = new BotonRedondo{sinMnemonico(opcion).trimmed(), ancho, this};
        const auto indice = static_cast<int>(botones_.size());
        connect(boton, &QRadioButton::clicked, this, [this, indice] { elige(indice); });
        layout()->addWidget(boton);
        botones_.push_back(boton);
    }
    updateGeometry();
}

int OpcionesCampo::anchoDeLinea() const {
    const int caracteres = campo().def().anchura;
    if (caracteres > 0) return qRound(caracteres * QFontMetricsF{font()}.averageCharWidth());
    return px(campo().rotulo().empty() ? kAnchoSinRotulo : kAnchoConRotulo);
}

void OpcionesCampo::elige(int indice) {
    setFocusProxy(botones_[static_cast<std::size_t>(indice)]);
    if (anfitrion().tomaFoco(*this)) {
        formulario().elige(campo(), indice);
    } else {
        refrescaValor();
    }
}

}  // namespace orvemo
