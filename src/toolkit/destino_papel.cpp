#include "toolkit/destino_papel.h"

#include <QPagedPaintDevice>
#include <algorithm>

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "toolkit/tipos_letra.h"

namespace orvemo {

namespace {

constexpr int kPuntosDeMedida = 1200;  // per inch
constexpr double kCentimetrosPorPunto = 2.54 / kPuntosDeMedida;
constexpr double kMargenMinimo = 0.5;  // cm
constexpr double kMilimetrosPorPulgada = 25.4;
constexpr double kTwipsPorPulgada = 1440;

/// Whole twips of a side of the paper. Going through millimetres and not through points keeps A4 at its
/// 11906 x 16838.
[[nodiscard]] double twips(double milimetros) {
    return RedondeaPar(milimetros / kMilimetrosPorPulgada * kTwipsPorPulgada);
}

/// The sheet, A4 where none was told, counted in millimetres.
[[nodiscard]] QPageLayout enMilimetros(QPageLayout papel) {
    if (!papel.isValid()) papel = {QPageSize{QPageSize::A4}, QPageLayout::Portrait, {}};
    papel.setUnits(QPageLayout::Millimeter);
    return papel;
}

[[nodiscard]] double centimetros(double milimetros) {
    return milimetros / 10;
}

[[nodiscard]] QImage leeImagen(const Almacen& almacen, const std::string& nombre) {
    const std::string bytes = almacen.leeHasta(nombre, kMaximoFicheroImagen);
    QImage imagen = QImage::fromData(QByteArray::fromStdString(bytes));
    if (imagen.isNull()) throw FalloImpresion{"el fichero «" + nombre + "» no contiene una imagen"};
    return imagen;
}

}  // namespace

Imagen imagenDe(const Almacen& almacen, const std::string& nombre) {
    const QImage imagen = leeImagen(almacen, nombre);
    return {.nombre = nombre,
            .ancho = static_cast<double>(imagen.width()),
            .alto = static_cast<double>(imagen.height())};
}

DestinoPapel::Regla::Regla() {
    papel.setResolution(kPuntosDeMedida);
}

DestinoPapel::DestinoPapel(const Almacen& almacen, const QPageLayout& papel)
    : almacen_{almacen}, papel_{enMilimetros(papel)}, medida_{tipoDeLetra(fuente_), &regla_.papel} {}

double DestinoPapel::Height() const {
    return twips(papel_.fullRect().height());
}

double DestinoPapel::Width() const {
    return twips(papel_.fullRect().width());
}

void DestinoPapel::NewPage() {
    hojas_.emplace_back();
    x_ = y_ = 0;
}

void DestinoPapel::EndDoc() {
    entrega();
    hojas_.assign(1, {});
    x_ = y_ = 0;
}

void DestinoPapel::Font(const Fuente& fuente) {
    if (fuente == fuente_) return;
    fuente_ = fuente;
    medida_ = QFontMetricsF{tipoDeLetra(fuente), &regla_.papel};
}

double DestinoPapel::TextWidth(std::string_view texto) const {
    const auto longitud = static_cast<qsizetype>(texto.size());
    return medida_.horizontalAdvance(QString::fromUtf8(texto.data(), longitud)) * kCentimetrosPorPunto;
}

void DestinoPapel::Print(std::string_view texto, bool finDeLinea) {
    const double ancho = TextWidth(texto);
    if (!texto.empty()) {
        hojas_.back().textos.push_back(
            {.x = x_,
             .y = y_,
             .ancho = ancho,
             .fuente = fuente_,
             .texto = QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()))});
    }
    if (finDeLinea) {
        x_ = 0;
        y_ += static_cast<float>(medida_.height() * kCentimetrosPorPunto);
    } else {
        x_ += static_cast<float>(ancho);
    }
}

void DestinoPapel::Line(double x1, double y1, double x2, double y2) {
    hojas_.back().lineas.push_back({x1, y1, x2, y2});
}

void DestinoPapel::Caja(double x1, double y1, double x2, double y2) {
    hojas_.back().cajas.push_back({x1, y1, x2, y2});
}

void DestinoPapel::PaintPicture(const Imagen& imagen, double x, double y, double ancho, double alto) {
    auto leida = imagenes_.find(imagen.nombre);
    if (leida == imagenes_.end())
        leida = imagenes_.emplace(imagen.nombre, leeImagen(almacen_, imagen.nombre)).first;
    hojas_.back().fotos.push_back({leida->second, {x, y, x + ancho, y + alto}});
}

/// The printable page begins half a centimetre inside the paper, or further where the printer can't reach,
/// and ends as far from the other side.
void DestinoPapel::pintaEn(QPagedPaintDevice& dispositivo) {
    const QMarginsF minimos = papel_.minimumMargins();
    const Margen margen{.x = std::max(kMargenMinimo, centimetros(std::max(minimos.left(), minimos.right()))),
                        .y = std::max(kMargenMinimo, centimetros(minimos.top()))};
    const double limite = centimetros(papel_.fullRect().width()) - 2 * margen.x;
    for (Hoja& hoja : hojas_) encaja(hoja, limite);

    QPageLayout entera = papel_;
    entera.setMode(QPageLayout::FullPageMode);
    dispositivo.setPageLayout(entera);
    pinta(hojas_, margen, dispositivo);
}

}  // namespace orvemo
