#pragma once

#include <charconv>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundations/values/fallos.h"
#include "foundations/values/textos.h"
#include "printing/destino_impresion.h"

namespace orvemo::pruebas {

/// One thing asked of the recorder. `x`, `y` are where it was asked, or the first corner of what was drawn;
/// `x2`, `y2` the opposite corner, or the size of a picture.
struct Operacion {
    enum class Tipo { PonX, PonY, PonFuente, Texto, Linea, Caja, Imagen, NewPage, EndDoc };

    Tipo tipo{};
    int pagina = 1;
    double x = 0, y = 0, x2 = 0, y2 = 0;
    Fuente fuente{};      ///< as it stood
    std::string texto{};  ///< printed text, or name of the picture
    bool finDeLinea = false;
};

/// Two decimals, with a point, without trailing zeros: fit to compare positions as text.
[[nodiscard]] inline std::string centesimas(double valor) {
    char cifras[32];
    const auto fin = std::to_chars(cifras, cifras + sizeof cifras, valor, std::chars_format::fixed, 2).ptr;
    std::string texto{cifras, fin};
    texto.erase(texto.find_last_not_of('0') + 1);
    if (texto.back() == '.') texto.pop_back();
    return texto == "-0" ? "0" : texto;
}

/// "Arial 12 NS": name, points, bold and underline.
[[nodiscard]] inline std::string descripcion(const Fuente& fuente) {
    std::string texto = fuente.nombre + ' ' + std::to_string(fuente.tamano);
    if (fuente.negrita || fuente.subrayado) texto += ' ';
    if (fuente.negrita) texto += 'N';
    if (fuente.subrayado) texto += 'S';
    return texto;
}

/// "Texto 1,4.5 Arial 12 N «María»", "Linea 0,3.2 21,3.2": one operation in words, centimetres to two
/// decimals.
[[nodiscard]] inline std::string descripcion(const Operacion& op) {
    using Tipo = Operacion::Tipo;
    const std::string desde = centesimas(op.x) + ',' + centesimas(op.y);
    const std::string hasta = centesimas(op.x2) + ',' + centesimas(op.y2);
    switch (op.tipo) {
        case Tipo::PonX:
            return "X " + centesimas(op.x);
        case Tipo::PonY:
            return "Y " + centesimas(op.y);
        case Tipo::PonFuente:
            return "Fuente " + descripcion(op.fuente);
        case Tipo::Texto:
            return "Texto " + desde + ' ' + descripcion(op.fuente) + " «" + op.texto + "»" +
                   (op.finDeLinea ? " fin" : "");
        case Tipo::Linea:
            return "Linea " + desde + ' ' + hasta;
        case Tipo::Caja:
            return "Caja " + desde + ' ' + hasta;
        case Tipo::Imagen:
            return "Imagen " + desde + " de " + hasta + ' ' + op.texto;
        case Tipo::NewPage:
            return "NewPage";
        case Tipo::EndDoc:
            return "EndDoc";
    }
    return {};
}

inline void PrintTo(const Operacion& op, std::ostream* salida) {
    *salida << "p" << op.pagina << ' ' << descripcion(op);
}

/// A print target that writes down all that it is asked. A4 by default; every character is as wide as any
/// other, 0.2 cm at 12 points and a tenth more in bold, and a line 0.5 cm high at 12 points.
class DestinoGrabador final : public DestinoImpresion {
  public:
    static constexpr double kAnchoA4 = 11906, kAltoA4 = 16838;  // twips

    DestinoGrabador() = default;
    /// A sheet of that many twips.
    DestinoGrabador(double ancho, double alto) : ancho_{ancho}, alto_{alto} {}

    std::vector<Operacion> operaciones;
    bool terminado = false;  ///< EndDoc was reached and went well

    /// EndDoc fails.
    bool fallaAlTerminar = false;
    /// The operation with this index, counted from 0, fails.
    std::optional<std::size_t> fallaEn;
    /// Told when the document ends, well or not.
    std::function<void(const DestinoGrabador&)> alCerrar;

    /// The sheet that is in the printer: it may be changed between two reports.
    void ponHoja(double ancho, double alto) {
        ancho_ = ancho;
        alto_ = alto;
    }

    [[nodiscard]] int paginas() const { return pagina_; }

    /// The text of each printed line: the fragments at one height of one page joined as they came, in the
    /// order in which the lines were begun. Lines on which nothing was printed are not there.
    [[nodiscard]] std::vector<std::string> lineas() const {
        std::vector<std::string> textos;
        std::map<std::pair<int, double>, std::size_t> indices;
        for (const Operacion& op : operaciones) {
            if (op.tipo != Operacion::Tipo::Texto || op.texto.empty()) continue;
            const auto [lugar, nueva] = indices.try_emplace({op.pagina, op.y}, textos.size());
            if (nueva) textos.emplace_back();
            textos[lugar->second] += op.texto;
        }
        return textos;
    }

    /// What reached the paper, in words: texts, lines, boxes, pictures and page feeds, without the setting of
    /// places and fonts nor empty texts.
    [[nodiscard]] std::vector<std::string> dibujo() const {
        using Tipo = Operacion::Tipo;
        std::vector<std::string> trazos;
        for (const Operacion& op : operaciones) {
            const bool prepara = op.tipo == Tipo::PonX || op.tipo == Tipo::PonY || op.tipo == Tipo::PonFuente;
            const bool nada = op.tipo == Tipo::Texto && op.texto.empty() && !op.finDeLinea;
            if (!prepara && !nada) trazos.push_back(descripcion(op));
        }
        return trazos;
    }

    [[nodiscard]] double Height() const override { return alto_; }
    [[nodiscard]] double Width() const override { return ancho_; }

    void NewPage() override {
        anota({.tipo = Operacion::Tipo::NewPage});
        ++pagina_;
        x_ = y_ = 0;
    }
    void EndDoc() override {
        anota({.tipo = Operacion::Tipo::EndDoc});
        if (!fallaAlTerminar) terminado = true;
        if (alCerrar) alCerrar(*this);
        if (fallaAlTerminar) throw FalloImpresion{"la impresora no responde"};
    }

    [[nodiscard]] float CurrentX() const override { return x_; }
    [[nodiscard]] float CurrentY() const override { return y_; }
    void CurrentX(float x) override {
        x_ = x;
        anota({.tipo = Operacion::Tipo::PonX, .x = x_, .y = y_});
    }
    void CurrentY(float y) override {
        y_ = y;
        anota({.tipo = Operacion::Tipo::PonY, .x = x_, .y = y_});
    }

    [[nodiscard]] const Fuente& Font() const override { return fuente_; }
    void Font(const Fuente& fuente) override {
        fuente_ = fuente;
        anota({.tipo = Operacion::Tipo::PonFuente, .x = x_, .y = y_});
    }

    [[nodiscard]] double TextWidth(std::string_view texto) const override {
        const double caracter = (fuente_.negrita ? 0.22 : 0.2) * fuente_.tamano / 12;
        return static_cast<double>(CuentaCaracteres(texto)) * caracter;
    }
    void Print(std::string_view texto, bool finDeLinea) override {
        anota({.tipo = Operacion::Tipo::Texto,
               .x = x_,
               .y = y_,
               .texto = std::string{texto},
               .finDeLinea = finDeLinea});
        if (finDeLinea) {
            x_ = 0;
            y_ += static_cast<float>(0.5 * fuente_.tamano / 12);
        } else {
            x_ += static_cast<float>(TextWidth(texto));
        }
    }
    void Line(double x1, double y1, double x2, double y2) override {
        anota({.tipo = Operacion::Tipo::Linea, .x = x1, .y = y1, .x2 = x2, .y2 = y2});
    }
    void Caja(double x1, double y1, double x2, double y2) override {
        anota({.tipo = Operacion::Tipo::Caja, .x = x1, .y = y1, .x2 = x2, .y2 = y2});
    }
    void PaintPicture(const Imagen& imagen, double x, double y, double ancho, double alto) override {
        anota({.tipo = Operacion::Tipo::Imagen,
               .x = x,
               .y = y,
               .x2 = ancho,
               .y2 = alto,
               .texto = imagen.nombre});
    }

  private:
    void anota(Operacion op) {
        op.pagina = pagina_;
        op.fuente = fuente_;
        if (fallaEn == operaciones.size()) throw FalloImpresion{"la impresora no responde"};
        operaciones.push_back(std::move(op));
    }

    double ancho_ = kAnchoA4;
    double alto_ = kAltoA4;
    int pagina_ = 1;
    float x_ = 0;
    float y_ = 0;
    Fuente fuente_{.nombre = "Arial", .tamano = 8};
};

}  // namespace orvemo::pruebas
