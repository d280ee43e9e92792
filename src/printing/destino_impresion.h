#pragma once

#include <string>
#include <string_view>

#include "foundations/values/fallos.h"

namespace orvemo {

/// A picture as the report engine needs it: where it lies and its shape.
struct Imagen {
    std::string nombre;          ///< bare name in the application directory
    double ancho = 0, alto = 0;  ///< in any unit: only their ratio counts
};

/// The font of a print target.
struct Fuente {
    std::string nombre;
    int tamano = 0;  ///< points
    bool negrita = false;
    bool subrayado = false;
    friend bool operator==(const Fuente&, const Fuente&) = default;
};

/// A print target: paper, a PDF, or a recorder. Positions and measures in centimetres from the top left
/// corner of the printable page; Y is the top of a line of text. What fails throws FalloImpresion.
class DestinoImpresion {
  public:
    virtual ~DestinoImpresion() = default;

    /// Page size in twips.
    [[nodiscard]] virtual double Height() const = 0;
    [[nodiscard]] virtual double Width() const = 0;

    virtual void NewPage() = 0;
    /// Ends the document and hands it over. One that is never ended leaves no trace.
    virtual void EndDoc() = 0;

    [[nodiscard]] virtual float CurrentX() const = 0;
    [[nodiscard]] virtual float CurrentY() const = 0;
    virtual void CurrentX(float x) = 0;
    virtual void CurrentY(float y) = 0;

    [[nodiscard]] virtual const Fuente& Font() const = 0;
    virtual void Font(const Fuente& fuente) = 0;

    /// Centimetres of the text in the current font.
    [[nodiscard]] virtual double TextWidth(std::string_view texto) const = 0;
    /// Prints at the current place. With a line end X returns to 0 and Y moves a line's height down; without
    /// it X moves along.
    virtual void Print(std::string_view texto, bool finDeLinea) = 0;
    virtual void Line(double x1, double y1, double x2, double y2) = 0;
    /// A solid black box.
    virtual void Caja(double x1, double y1, double x2, double y2) = 0;
    virtual void PaintPicture(const Imagen& imagen, double x, double y, double ancho, double alto) = 0;
};

}  // namespace orvemo
