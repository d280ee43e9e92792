#include "lienzo.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QHash>
#include <algorithm>
#include <stdexcept>

namespace orvemo::dibuja {

namespace {

constexpr int kPuntosPorUnidad = 2;
constexpr int kUnidadesPorMetro = 3780;  // 96 to the inch
constexpr double kInterlineado = 1.35;
constexpr int kColores = 256;

QFont letraSinComprobar(double cuerpo, QFont::Weight peso) {
    QFont fuente(QStringLiteral("Liberation Sans"));
    fuente.setPixelSize(static_cast<int>(cuerpo));
    fuente.setWeight(peso);
    fuente.setHintingPreference(QFont::PreferNoHinting);
    return fuente;
}

QStringList parteEnLineas(const QString& texto, const QFontMetricsF& medidas, double ancho) {
    QStringList lineas;
    for (const QString& palabra : texto.split(QLatin1Char(' '))) {
        const QString alargada = lineas.isEmpty() ? palabra : lineas.last() + QLatin1Char(' ') + palabra;
        if (lineas.isEmpty() || medidas.horizontalAdvance(alargada) > ancho) {
            lineas.append(palabra);
        } else {
            lineas.last() = alargada;
        }
    }
    return lineas;
}

[[noreturn]] void noCabe(const QString& texto) {
    throw std::runtime_error("No cabe en el dibujo: " + texto.toStdString());
}

}  // namespace

QFont letra(double cuerpo, QFont::Weight peso) {
    QFont fuente = letraSinComprobar(cuerpo, peso);
    if (QFontInfo(fuente).family() != fuente.family()) {
        throw std::runtime_error("Falta la letra Liberation Sans (paquete fonts-liberation)");
    }
    return fuente;
}

Lienzo::Lienzo(int ancho, int alto, QColor fondo)
    : imagen_(ancho * kPuntosPorUnidad, alto * kPuntosPorUnidad, QImage::Format_RGB32),
      hoja_(0, 0, ancho, alto) {
    imagen_.fill(fondo);
    pincel_.begin(&imagen_);
    pincel_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    pincel_.scale(kPuntosPorUnidad, kPuntosPorUnidad);
    pincel_.setPen(Qt::NoPen);
}

void Lienzo::linea(QPointF origen, const QString& texto, double cuerpo, QColor color, QFont::Weight peso) {
    const QFont fuente = letra(cuerpo, peso);
    const QFontMetricsF medidas(fuente);
    const QRectF ocupado(origen, QSizeF(medidas.horizontalAdvance(texto), medidas.height()));
    if (!hoja_.contains(ocupado)) {
        noCabe(texto);
    }
    pincel_.save();
    pincel_.setFont(fuente);
    pincel_.setPen(color);
    pincel_.drawText(origen + QPointF(0, medidas.ascent()), texto);
    pincel_.restore();
}

double Lienzo::parrafo(QRectF caja, const QString& texto, double cuerpo, QColor color, QFont::Weight peso,
                       Qt::Alignment posicion) {
    const QFontMetricsF medidas(letra(cuerpo, peso));
    const double paso = cuerpo * kInterlineado;
    double usado = 0;
    for (const QString& renglon : parteEnLineas(texto, medidas, caja.width())) {
        const double sobra = caja.width() - medidas.horizontalAdvance(renglon);
        if (sobra < 0 || usado + paso > caja.height()) {
            noCabe(texto);
        }
        const double sangria = posicion.testFlag(Qt::AlignHCenter) ? sobra / 2 : 0;
        linea(caja.topLeft() + QPointF(sangria, usado), renglon, cuerpo, color, peso);
        usado += paso;
    }
    return usado;
}

void Lienzo::guarda(const QString& fichero) {
    pincel_.end();
    QImage imagen = reduceColores(imagen_);
    imagen.setDotsPerMeterX(kPuntosPorUnidad * kUnidadesPorMetro);
    imagen.setDotsPerMeterY(kPuntosPorUnidad * kUnidadesPorMetro);
    escribe(imagen, fichero);
}

QImage reduceColores(const QImage& imagen) {
    QHash<QRgb, int> veces;
    for (int fila = 0; fila < imagen.height(); ++fila) {
        for (int columna = 0; columna < imagen.width(); ++columna) {
            ++veces[imagen.pixel(columna, fila)];
        }
    }
    QList<QRgb> tabla = veces.keys();
    // Equal counts fall in the order of the colour, so that the same drawing gives the same bytes.
    std::sort(tabla.begin(), tabla.end(),
              [&](QRgb a, QRgb b) { return veces[a] != veces[b] ? veces[a] > veces[b] : a < b; });
    tabla.resize(std::min<qsizetype>(tabla.size(), kColores));
    return imagen.convertToFormat(QImage::Format_Indexed8, tabla, Qt::ThresholdDither);
}

void escribe(const QImage& imagen, const QString& fichero) {
    if (!imagen.save(fichero)) {
        throw std::runtime_error("No se puede escribir " + fichero.toStdString());
    }
}

}  // namespace orvemo::dibuja
