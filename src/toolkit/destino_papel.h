#pragma once

#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QPageLayout>
#include <QPdfWriter>
#include <map>
#include <string>
#include <vector>

#include "foundations/values/almacen.h"
#include "printing/destino_impresion.h"
#include "toolkit/hoja.h"

namespace orvemo {

/// The name under which the program signs its documents.
inline constexpr const char* kCreadorDocumentos = "PENSIONES_ORVEMO";

/// A picture of the application directory, as reports want it. Throws FicheroInaccesible, and FalloImpresion
/// if the file holds no picture.
[[nodiscard]] Imagen imagenDe(const Almacen& almacen, const std::string& nombre);

/// Paper: a printer or a PDF. The pages are put together in memory and reach the device at EndDoc only, so
/// that a document that is thrown away or fails leaves no trace. Texts are measured at a fixed 1200 dots per
/// inch: where a line is cut doesn't depend on the device.
class DestinoPapel : public DestinoImpresion {
  public:
    [[nodiscard]] double Height() const override;
    [[nodiscard]] double Width() const override;

    void NewPage() override;
    void EndDoc() override;

    [[nodiscard]] float CurrentX() const override { return x_; }
    [[nodiscard]] float CurrentY() const override { return y_; }
    void CurrentX(float x) override { x_ = x; }
    void CurrentY(float y) override { y_ = y; }

    [[nodiscard]] const Fuente& Font() const override { return fuente_; }
    void Font(const Fuente& fuente) override;

    [[nodiscard]] double TextWidth(std::string_view texto) const override;
    void Print(std::string_view texto, bool finDeLinea) override;
    void Line(double x1, double y1, double x2, double y2) override;
    void Caja(double x1, double y1, double x2, double y2) override;
    /// Throws as imagenDe does.
    void PaintPicture(const Imagen& imagen, double x, double y, double ancho, double alto) override;

  protected:
    /// `almacen` holds the pictures and must outlive the target.
    DestinoPapel(const Almacen& almacen, const QPageLayout& papel);

    /// Paints what has been put together.
    void pintaEn(QPagedPaintDevice& dispositivo);

  private:
    /// Hands the document over, painting it with pintaEn. Throws FalloImpresion.
    virtual void entrega() = 0;

    /// A device on which nothing is painted: it only lends its resolution to the measuring.
    struct Regla {
        Regla();
        QBuffer nada;
        QPdfWriter papel{&nada};
    };

    const Almacen& almacen_;
    QPageLayout papel_;
    Regla regla_;
    Fuente fuente_{.nombre = "Arial", .tamano = 10};
    QFontMetricsF medida_;
    float x_ = 0;
    float y_ = 0;
    std::map<std::string, QImage> imagenes_;
    std::vector<Hoja> hojas_{1};
};

}  // namespace orvemo
