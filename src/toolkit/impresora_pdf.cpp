#include "toolkit/impresora_pdf.h"

#include <QBuffer>
#include <QPdfWriter>
#include <utility>

#include "foundations/values/almacen.h"
#include "foundations/values/fallos.h"

namespace orvemo {

namespace {

constexpr int kPuntosPorPulgada = 1200;

/// The name may hold any bytes, which the library's own files don't take.
void guarda(const std::filesystem::path& ruta, const QByteArray& contenido) {
    try {
        SustituyeFichero(ruta, {contenido.constData(), static_cast<std::size_t>(contenido.size())});
    } catch (const FicheroInaccesible&) {
        throw FalloImpresion{"no se puede escribir el fichero «" + ruta.string() + "»"};
    }
}

}  // namespace

DestinoPdf::DestinoPdf(const Almacen& almacen, std::filesystem::path ruta, const std::string& titulo,
                       const QPageLayout& papel)
    : DestinoPapel{almacen, papel}, ruta_{std::move(ruta)}, titulo_{QString::fromStdString(titulo)} {}

void DestinoPdf::entrega() {
    QBuffer contenido;
    contenido.open(QIODevice::WriteOnly);
    QPdfWriter pdf{&contenido};
    pdf.setResolution(kPuntosPorPulgada);
    pdf.setTitle(titulo_.isEmpty() ? QString::fromLatin1(kCreadorDocumentos) : titulo_);
    pdf.setCreator(QString::fromLatin1(kCreadorDocumentos));
    pintaEn(pdf);
    guarda(ruta_, contenido.data());
}

std::unique_ptr<DestinoImpresion> ImpresoraPdf::elige(const std::string& documento) {
    return std::make_unique<DestinoPdf>(almacen_, ruta_, documento);
}

}  // namespace orvemo
