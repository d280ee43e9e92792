#pragma once

#include <span>
#include <string>
#include <string_view>

#include "printing/rutinas_impresion.h"

namespace orvemo {

/// A label and an amount, side by side in one column of a report.
struct CeldaInforme {
    std::string rotulo;
    std::string importe;
};

/// The letters of a report's body, and how far down the page it begins.
struct CuerpoInforme {
    std::string_view fuente = "Arial";
    int tamano = 12;        ///< points
    float comienzo = 6.0F;  ///< centimetres
};

/// The shape that the reports of the calculators share: title, data lines, a step, the conclusions.
class Informe {
  public:
    /// Starts the document: header with the title, then the body from X 1.
    Informe(RutinasImpresion& rutinas, std::string_view titulo, const CuerpoInforme& cuerpo = {});

    /// Goes on at this height of the page, in centimetres.
    void salta(float y);

    /// One line of data.
    void linea(std::string_view texto);
    /// One line of several columns, the amounts of each aligned on the right.
    void columnas(std::span<const CeldaInforme> celdas);
    /// The empty step between data and conclusions.
    void separa();
    /// "CONCLUSIONES", bold and underlined.
    void tituloConclusiones();
    /// The conclusions, cut at their line ends, a line each.
    void conclusiones(std::string_view texto);

  private:
    RutinasImpresion& rutinas_;
};

}  // namespace orvemo
