#pragma once

#include <string_view>

#include "printing/rutinas_impresion.h"

namespace orvemo {

/// The shape that the reports of the calculators share: title, data lines, a step, the conclusions.
class Informe {
  public:
    /// Starts the document: header with the title, "Arial" 12, body from X 1, Y 6.
    Informe(RutinasImpresion& rutinas, std::string_view titulo);

    /// One line of data.
    void linea(std::string_view texto);
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
