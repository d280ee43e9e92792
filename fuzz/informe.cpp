// Any bytes as the text of a report. The engine must come to an end, keep within the page and leave each line
// as it must be left: plain, and at the left edge.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "foundations/values/textos.h"
#include "printing/rutinas_impresion.h"

namespace {

using orvemo::Fuente;

void exige(bool condicion) {
    if (!condicion) std::abort();
}

/// A4 paper that keeps nothing but where it stands. Letters differ in width, and some have none.
class Hoja final : public orvemo::DestinoImpresion {
  public:
    [[nodiscard]] double Height() const override { return 16838; }
    [[nodiscard]] double Width() const override { return 11906; }
    void NewPage() override {
        ++paginas;
        x_ = y_ = 0;
    }
    void EndDoc() override {}
    [[nodiscard]] float CurrentX() const override { return x_; }
    [[nodiscard]] float CurrentY() const override { return y_; }
    void CurrentX(float x) override { x_ = x; }
    void CurrentY(float y) override { y_ = y; }
    [[nodiscard]] const Fuente& Font() const override { return fuente_; }
    void Font(const Fuente& fuente) override { fuente_ = fuente; }
    [[nodiscard]] double TextWidth(std::string_view texto) const override {
        double ancho = 0;
        for (const char c : texto) ancho += (static_cast<unsigned char>(c) % 8) * 0.05;
        return ancho * fuente_.tamano / 12 * (fuente_.negrita ? 1.1 : 1);
    }
    void Print(std::string_view texto, bool) override {
        impresos += texto.size();
        x_ += static_cast<float>(TextWidth(texto));
        if (texto != "$") {
            exige(texto.empty() || x_ <= Width() / 567 + 1e-4);
            exige(texto.find('$') == std::string_view::npos);
        }
        exige(y_ <= 25.6967F);
    }
    void Line(double, double, double, double) override {}
    void Caja(double, double, double, double) override {}
    void PaintPicture(const orvemo::Imagen&, double, double, double, double) override {}

    std::size_t impresos = 0;
    std::size_t paginas = 1;

  private:
    float x_ = 0;
    float y_ = 0;
    Fuente fuente_;
};

[[nodiscard]] std::size_t cuenta(std::string_view texto, std::string_view pieza) {
    std::size_t veces = 0;
    for (auto p = texto.find(pieza); p != std::string_view::npos; p = texto.find(pieza, p + 1)) ++veces;
    return veces;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    const std::string_view texto{reinterpret_cast<const char*>(datos), longitud};
    Hoja hoja;
    orvemo::RutinasImpresion rutinas{{.nombre = "logo.bmp", .ancho = 3, .alto = 1}};
    rutinas.empieza(hoja);
    rutinas.ImprimeCabecera(1, texto.substr(0, 40));
    rutinas.PonFuente("Arial", 12, texto.substr(0, 2));
    rutinas.PonPosicion(1.0F, 6.0F);
    hoja.impresos = 0;
    rutinas.ImprimeConclusion(texto);

    exige(hoja.impresos <= longitud);
    const std::size_t saltos = cuenta(texto, "$P") + cuenta(texto, "$p");
    const std::size_t lineas = cuenta(texto, orvemo::kFinDeLinea) + 1;
    exige(hoja.paginas <= 1 + 2 * saltos + lineas);
    exige(longitud == 0 || hoja.CurrentX() == 0);
    exige(longitud == 0 || (!hoja.Font().negrita && !hoja.Font().subrayado));
    return 0;
}
