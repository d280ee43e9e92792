#include "toolkit/grafica_campo.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "foundations/values/formatos.h"
#include "toolkit/medidas.h"
#include "toolkit/paleta.h"
#include "toolkit/textos_qt.h"

namespace orvemo {

namespace {

// Twips.
constexpr int kAnchoMinimo = 4500;
constexpr int kAltoMinimo = 2700;
constexpr int kHueco = 75;
constexpr int kRadioMarca = 60;

constexpr int kDivisiones = 5;

/// What an axis goes from and to, in steps that are easily read.
struct Eje {
    double desde = 0, hasta = 1, paso = 1;
};

/// The step of 1, 2 or 5 times a power of ten that parts the length in about so many.
double pasoRedondo(double largo) {
    const double justo = largo / kDivisiones;
    const double potencia = std::pow(10, std::floor(std::log10(justo)));
    const double veces = justo / potencia;
    return potencia * (veces <= 1 ? 1 : veces <= 2 ? 2 : veces <= 5 ? 5 : 10);
}

Eje ejePara(double menor, double mayor) {
    const double largo = mayor > menor ? mayor - menor : std::max(1.0, std::abs(mayor));
    const double paso = pasoRedondo(largo);
    const double desde = std::floor(menor / paso) * paso;
    const double hasta = std::ceil((mayor > menor ? mayor : menor + largo) / paso) * paso;
    return {desde, hasta, paso};
}

QString numero(double valor, double paso) {
    return aQt(FormatoNumero(valor, paso < 1 ? "##,###,##0.00" : "##,###,##0"));
}

/// One drawing of a plot in a rectangle.
class Dibujo {
  public:
    Dibujo(QPainter& pincel, const Grafica& grafica, const QRect& sitio)
        : pincel_{pincel}, grafica_{grafica}, letra_{pincel.fontMetrics()} {
        std::vector<PuntoGrafica> todos = grafica.puntos;
        if (grafica.marcado) todos.push_back(*grafica.marcado);
        const auto [x1, x2] = std::ranges::minmax(todos, {}, &PuntoGrafica::x);
        const auto [y1, y2] = std::ranges::minmax(todos, {}, &PuntoGrafica::y);
        ejeX_ = ejePara(x1.x, x2.x);
        ejeY_ = ejePara(y1.y, y2.y);
        const int alto = letra_.height();
        const int anchoX = letra_.horizontalAdvance(numero(ejeX_.hasta, ejeX_.paso));
        const int anchoY = std::max(letra_.horizontalAdvance(numero(ejeY_.hasta, ejeY_.paso)),
                                    letra_.horizontalAdvance(numero(ejeY_.desde, ejeY_.paso)));
        campo_ = sitio.adjusted(anchoY + 2 * px(kHueco), alto + 2 * px(kHueco), -anchoX / 2 - px(kHueco),
                                -2 * alto - 3 * px(kHueco));
    }

    void pinta() {
        pintaEjeX();
        pintaEjeY();
        pintaRotulos();
        pintaLinea();
        if (grafica_.marcado) pintaMarca(*grafica_.marcado);
    }

  private:
    [[nodiscard]] double enX(double x) const {
        return campo_.left() + (x - ejeX_.desde) / (ejeX_.hasta - ejeX_.desde) * campo_.width();
    }
    [[nodiscard]] double enY(double y) const {
        return campo_.bottom() - (y - ejeY_.desde) / (ejeY_.hasta - ejeY_.desde) * campo_.height();
    }
    [[nodiscard]] QPointF en(PuntoGrafica punto) const { return {enX(punto.x), enY(punto.y)}; }

    /// The values at which an axis bears a number.
    template <typename Accion>
    static void recorre(const Eje& eje, Accion accion) {
        const auto total = static_cast<int>(std::lround((eje.hasta - eje.desde) / eje.paso));
        for (int i = 0; i <= total; ++i) accion(eje.desde + i * eje.paso);
    }

    void pintaEjeX() {
        recorre(ejeX_, [this](double x) {
            pincel_.setPen(kColorBorde);
            pincel_.drawLine(QPointF{enX(x), double(campo_.top())}, QPointF{enX(x), double(campo_.bottom())});
            escribe(numero(x, ejeX_.paso), {enX(x), double(campo_.bottom() + px(kHueco))},
                    Qt::AlignHCenter | Qt::AlignTop);
        });
    }

    void pintaEjeY() {
        recorre(ejeY_, [this](double y) {
            pincel_.setPen(kColorBorde);
            pincel_.drawLine(QPointF{double(campo_.left()), enY(y)}, QPointF{double(campo_.right()), enY(y)});
            escribe(numero(y, ejeY_.paso), {double(campo_.left() - px(kHueco)), enY(y)},
                    Qt::AlignRight | Qt::AlignVCenter);
        });
    }

    void pintaRotulos() {
        escribe(aQt(grafica_.ejeY), {double(campo_.left()), double(campo_.top() - px(kHueco))},
                Qt::AlignLeft | Qt::AlignBottom);
        const double abajo = campo_.bottom() + letra_.height() + 2 * px(kHueco);
        escribe(aQt(grafica_.ejeX), {double(campo_.center().x()), abajo}, Qt::AlignHCenter | Qt::AlignTop);
    }

    void pintaLinea() {
        QPolygonF linea;
        for (const PuntoGrafica& punto : grafica_.puntos) linea << en(punto);
        pincel_.setPen({kColorAcento, 1.5 * escala(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        pincel_.drawPolyline(linea);
    }

    /// The point, its way down to both axes, and its two figures above the line or below it, where there is
    /// room.
    void pintaMarca(PuntoGrafica marcado) {
        const QPointF c = en(marcado);
        pincel_.setPen({kColorTextoSecundario, 1.0 * escala(), Qt::DashLine});
        pincel_.drawLine(c, QPointF{c.x(), double(campo_.bottom())});
        pincel_.drawLine(c, QPointF{double(campo_.left()), c.y()});
        pincel_.setPen({kColorBase, 1.5 * escala()});
        pincel_.setBrush(kColorAcento);
        pincel_.drawEllipse(c, px(kRadioMarca), px(kRadioMarca));
        const bool aLaIzquierda = c.x() > campo_.center().x();
        const double lado = (aLaIzquierda ? -2 : 2) * px(kHueco);
        QFont negrita = pincel_.font();
        negrita.setBold(true);
        pincel_.setFont(negrita);
        escribe(numero(marcado.x, 0.01) + QStringLiteral(" → ") + numero(marcado.y, 0.01),
                c + QPointF{lado, 0},
                (aLaIzquierda ? Qt::AlignRight : Qt::AlignLeft) |
                    (aLaIzquierda ? Qt::AlignBottom : Qt::AlignTop));
    }

    /// A text beside a point: which of its edges lies there.
    void escribe(const QString& texto, QPointF punto, Qt::Alignment lado) {
        const QSizeF talla{pincel_.fontMetrics().size(0, texto)};
        QPointF esquina = punto;
        if (lado.testFlag(Qt::AlignRight)) esquina.rx() -= talla.width();
        if (lado.testFlag(Qt::AlignHCenter)) esquina.rx() -= talla.width() / 2;
        if (lado.testFlag(Qt::AlignBottom)) esquina.ry() -= talla.height();
        if (lado.testFlag(Qt::AlignVCenter)) esquina.ry() -= talla.height() / 2;
        pincel_.setPen(kColorTexto);
        pincel_.drawText(QRectF{esquina, talla}, Qt::AlignLeft | Qt::AlignTop, texto);
    }

    QPainter& pincel_;
    const Grafica& grafica_;
    QFontMetrics letra_;
    Eje ejeX_, ejeY_;
    QRect campo_;
};

}  // namespace

GraficaCampo::GraficaCampo(Campo& campo, Anfitrion& anfitrion) : Control{campo, anfitrion} {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    ponNombreAccesible(QStringLiteral("Gráfica"));
}

QSize GraficaCampo::minimumSizeHint() const {
    return {px(kAnchoMinimo), px(kAltoMinimo)};
}

void GraficaCampo::refrescaValor() {
    setAccessibleDescription(aQt(campo().grafica().descripcion));
    update();
}

void GraficaCampo::paintEvent(QPaintEvent* /*suceso*/) {
    const Grafica& grafica = campo().grafica();
    if (grafica.puntos.empty()) return;
    QPainter pincel{this};
    pincel.setRenderHint(QPainter::Antialiasing);
    Dibujo{pincel, grafica, rect()}.pinta();
}

}  // namespace orvemo
