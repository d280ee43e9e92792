#pragma once

#include <string_view>

#include "printing/destino_impresion.h"

namespace orvemo {

/// A document that is the first page of a longer one: where it ends, a new page begins.
class PaginaPrevia final : public DestinoImpresion {
  public:
    explicit PaginaPrevia(DestinoImpresion& destino) : destino_{destino} {}

    [[nodiscard]] double Height() const override { return destino_.Height(); }
    [[nodiscard]] double Width() const override { return destino_.Width(); }
    void NewPage() override { destino_.NewPage(); }
    void EndDoc() override { destino_.NewPage(); }
    [[nodiscard]] float CurrentX() const override { return destino_.CurrentX(); }
    [[nodiscard]] float CurrentY() const override { return destino_.CurrentY(); }
    void CurrentX(float x) override { destino_.CurrentX(x); }
    void CurrentY(float y) override { destino_.CurrentY(y); }
    [[nodiscard]] const Fuente& Font() const override { return destino_.Font(); }
    void Font(const Fuente& fuente) override { destino_.Font(fuente); }
    [[nodiscard]] double TextWidth(std::string_view texto) const override {
        return destino_.TextWidth(texto);
    }
    void Print(std::string_view texto, bool finDeLinea) override { destino_.Print(texto, finDeLinea); }
    void Line(double x1, double y1, double x2, double y2) override { destino_.Line(x1, y1, x2, y2); }
    void Caja(double x1, double y1, double x2, double y2) override { destino_.Caja(x1, y1, x2, y2); }
    void PaintPicture(const Imagen& imagen, double x, double y, double ancho, double alto) override {
        destino_.PaintPicture(imagen, x, y, ancho, alto);
    }

  private:
    DestinoImpresion& destino_;
};

}  // namespace orvemo
