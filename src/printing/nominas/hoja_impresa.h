#pragma once

#include <span>
#include <string>
#include <string_view>

#include "printing/destino_impresion.h"

namespace orvemo::nomina {

/// The letters of the printed forms: Arial 8 for what is told, SmallFonts 6 for the captions.
enum class Letra { Cuerpo, CuerpoNegrita, Rotulo, RotuloNegrita };

/// What X is to a text: its left end, its right end or its middle; a gap after the text before it; or its
/// left end, with room up to another X in which the text is made to fit.
enum class Ajuste { Izquierda, Derecha, Centro, Detras, Cabe };

/// A line of a form, centimetres.
struct Trazo {
    double x1, y1, x2, y2;
};

/// Where a text stands, centimetres. Y is its top.
struct Sitio {
    double x, y;
    Letra letra;
    Ajuste ajuste = Ajuste::Izquierda;
    double hasta = 0;  ///< end of the room of one that has to fit
};

/// A caption of a form.
struct Rotulo {
    Sitio sitio;
    std::string_view texto;
};

/// A text of a form that tells something of the payslip.
template <typename Datos>
struct Valor {
    Sitio sitio;
    std::string (*texto)(const Datos&);
};

/// Draws on a print target at fixed places. While `ErrorImpresion` stands nothing is drawn and the document
/// is dropped at its end.
class HojaImpresa {
  public:
    explicit HojaImpresa(DestinoImpresion& destino) : destino_{destino} {}

    bool ErrorImpresion = false;

    void traza(std::span<const Trazo> trazos);
    void escribe(const Sitio& sitio, std::string_view texto);
    void escribe(std::span<const Rotulo> rotulos);
    template <typename Datos>
    void escribe(std::span<const Valor<Datos>> valores, const Datos& datos) {
        for (const auto& valor : valores) escribe(valor.sitio, valor.texto(datos));
    }

    /// The text and, from its end on, dots up to `hasta`; those of all rows stand under one another.
    void escribePunteado(const Sitio& sitio, std::string_view texto, double hasta);
    /// The amount with its right edge at the column of amounts; nothing for 0.
    void escribeImporte(double y, Letra letra, double importe);
    /// The caption filled with dots up to its width.
    void escribeRelleno(const Sitio& sitio, std::string_view texto, double ancho);

    /// Centimetres that the text takes.
    [[nodiscard]] double ancho(Letra letra, std::string_view texto);

    /// Hands the document over, unless an error was flagged.
    void termina();

  private:
    void EscribeEn(double x, double y, std::string_view texto);
    void EscribeDerecha(double x, double y, std::string_view texto);
    void escribeDesde(double x, double y, std::string_view texto);
    void ponFuente(Letra letra);
    void ponFuente(int tamano);
    void encaja(const Sitio& sitio, const std::string& texto);
    bool encajaEnUnaLinea(const Sitio& sitio, const std::string& texto);
    bool encajaEnDosLineas(const Sitio& sitio, const std::string& texto);

    DestinoImpresion& destino_;
    double fin_ = 0;  ///< right end of the last text that begins where it was told
};

/// The step of a group of rows that has `alto` centimetres: 0.4, or less when they are many.
[[nodiscard]] double PasoDeFilas(std::size_t filas, double alto);

}  // namespace orvemo::nomina
