#include "toolkit/hoja.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "foundations/values/fallos.h"
#include "toolkit/tipos_letra.h"

namespace orvemo {

namespace {

constexpr double kCentimetrosPorPulgada = 2.54;
constexpr double kGrosorRegla = 0.02;  // cm

using Textos = std::vector<Hoja::Texto>;

/// Whether a piece goes on where the one before it ends: a line of text is put down piece by piece.
bool sigue(const Hoja::Texto& antes, const Hoja::Texto& pieza) {
    constexpr double kRoce = 0.001;  // cm, for places are of single precision
    return pieza.y == antes.y && std::abs(pieza.x - (antes.x + antes.ancho)) <= kRoce;
}

/// Squeezes the pieces of one line towards its left edge. A line wholly outside stays there.
void condensa(Textos::iterator primera, Textos::iterator fin, double limite) {
    const double desde = primera->x;
    const double hasta = std::prev(fin)->x + std::prev(fin)->ancho;
    if (hasta <= limite || desde >= limite) return;
    const double estrechez = (limite - desde) / (hasta - desde);
    for (; primera != fin; ++primera) {
        primera->estrechez = estrechez;
        primera->x = desde + (primera->x - desde) * estrechez;
    }
}

void condensaLineas(Textos& textos, double limite) {
    for (auto primera = textos.begin(); primera != textos.end();) {
        const auto ultima = std::adjacent_find(
            primera, textos.end(), [](const auto& antes, const auto& pieza) { return !sigue(antes, pieza); });
        const auto fin = ultima == textos.end() ? ultima : std::next(ultima);
        condensa(primera, fin, limite);
        primera = fin;
    }
}

void recorta(Hoja::Rectangulo& trazo, double limite) {
    trazo.x1 = std::min(trazo.x1, limite);
    trazo.x2 = std::min(trazo.x2, limite);
}

/// A painter that is told everything in centimetres.
class Pintor {
  public:
    Pintor(QPagedPaintDevice& dispositivo, Margen margen) : margen_{margen} {
        if (!pintor_.begin(&dispositivo)) throw FalloImpresion{"la impresora no acepta el documento"};
        puntosX_ = dispositivo.logicalDpiX() / kCentimetrosPorPulgada;
        puntosY_ = dispositivo.logicalDpiY() / kCentimetrosPorPulgada;
        pintor_.setPen(QPen{Qt::black, kGrosorRegla * puntosX_, Qt::SolidLine, Qt::FlatCap});
        pintor_.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    }

    void pinta(const Hoja& hoja) {
        for (const Hoja::Foto& foto : hoja.fotos) pintor_.drawImage(marco(foto.sitio), foto.imagen);
        for (const Hoja::Rectangulo& caja : hoja.cajas) pintor_.fillRect(marco(caja), Qt::black);
        for (const Hoja::Rectangulo& linea : hoja.lineas) {
            pintor_.drawLine(punto(linea.x1, linea.y1), punto(linea.x2, linea.y2));
        }
        for (const Hoja::Texto& texto : hoja.textos) escribe(texto);
    }

    void termina() {
        if (!pintor_.end()) throw FalloImpresion{"la impresora no ha terminado el documento"};
    }

  private:
    [[nodiscard]] QPointF punto(double x, double y) const {
        return {(x + margen_.x) * puntosX_, (y + margen_.y) * puntosY_};
    }

    [[nodiscard]] QRectF marco(const Hoja::Rectangulo& sitio) const {
        return QRectF{punto(sitio.x1, sitio.y1), punto(sitio.x2, sitio.y2)}.normalized();
    }

    /// The place of a text is its top; painters want its base line.
    void escribe(const Hoja::Texto& texto) {
        const QFont letra = tipoDeLetra(texto.fuente);
        pintor_.save();
        pintor_.setFont(letra);
        pintor_.translate(punto(texto.x, texto.y));
        pintor_.scale(texto.estrechez, 1);
        const QFontMetricsF medida{letra, pintor_.device()};
        pintor_.drawText(QPointF{0, medida.ascent()}, texto.texto);
        if (texto.fuente.subrayado) subraya(medida, texto.ancho * puntosX_);
        pintor_.restore();
    }

    /// The toolkit's own underline takes the line's thickness off twice and runs into the feet of bold
    /// letters.
    void subraya(const QFontMetricsF& medida, double ancho) {
        const double grosor = medida.lineWidth();
        const double arriba = medida.ascent() + medida.underlinePos() + grosor / 2;
        pintor_.fillRect(QRectF{0, arriba, ancho, grosor}, Qt::black);
    }

    QPainter pintor_;
    Margen margen_;
    double puntosX_ = 0;
    double puntosY_ = 0;
};

}  // namespace

void encaja(Hoja& hoja, double limite) {
    condensaLineas(hoja.textos, limite);
    for (Hoja::Rectangulo& linea : hoja.lineas) recorta(linea, limite);
    for (Hoja::Rectangulo& caja : hoja.cajas) recorta(caja, limite);
}

void pinta(const std::vector<Hoja>& hojas, Margen margen, QPagedPaintDevice& dispositivo) {
    Pintor pintor{dispositivo, margen};
    for (std::size_t i = 0; i < hojas.size(); ++i) {
        if (i > 0 && !dispositivo.newPage()) throw FalloImpresion{"la impresora no da otra hoja"};
        pintor.pinta(hojas[i]);
    }
    pintor.termina();
}

}  // namespace orvemo
