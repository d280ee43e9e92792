#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "foundations/values/fechas.h"

namespace orvemo::pruebas {

/// What the user writes, marks or chooses on a field.
struct Asignacion {
    std::string campo{};
    int indice = 0;  ///< place in a control array
    std::string valor{};

    [[nodiscard]] bool mismoCampo(const Asignacion& otra) const {
        return campo == otra.campo && indice == otra.indice;
    }
};

/// What must lie at a place of the saved record.
struct Bytes {
    std::size_t posicion = 0;
    std::string tipo{};  ///< "entero", "doble", "octeto" or "texto"
    std::string valor{};
};

/// A whole case: what is filled in and all that the program says of it.
struct Historia {
    std::string titulo{};
    std::vector<Asignacion> campos{};
    bool derecho = false;
    std::string conclusion{};             ///< with its line ends
    std::vector<std::string> mensajes{};  ///< boxes that spoke on the way, "Error: …"
    std::vector<std::string> informe{};   ///< printed lines; "..." stands for any number of them
    std::vector<Bytes> bytes{};
    bool seGuarda = true;
};

/// What is known of one field.
struct Ficha {
    Asignacion campo{};  ///< and the value of a new case; "hoy" is today's date
    std::string rotulo{};
    std::string limites{};  ///< "1 a 99", "50 letras", the entries of a list "uno / otro", or nothing
    std::vector<std::vector<Asignacion>> seVe{};  ///< any of these choices brings it on view; none: always
    bool deEntrada = false;                       ///< on view in a new case all the same
};

/// The stories and the cards of one calculator.
struct Documento {
    std::string calculadora{};
    Fecha hoy{};
    std::vector<std::string> ventana{};  ///< title, caption, case file and the subtitles of the panels
    bool basesFuturas = false;           ///< the switch `VerBaseActual`
    std::vector<Ficha> fichas{};
    std::vector<Historia> historias{};
};

/// Reads a document; a line that isn't understood throws std::runtime_error with its number.
///
/// Lines at the margin open a section ("calculadora", "hoy", "ventana", "frase", "siempre", "fichas",
/// "historia"), indented ones belong to it, and what begins with "#" to nobody. In a story "Campo = valor"
/// fills a field in or presses a button ("siempre" holds those of every story after it), "| texto" is a line
/// of the conclusions and "+ frase uno / otro" a sentence named before, its $1 and $2 replaced; a "\" at the
/// end stands for no line end and "\s" for a blank. "mensaje ", ": " and "en POSICION TIPO VALOR" tell boxes,
/// printed lines and bytes; a case that can't be saved says "sin guardar". Fields and bytes may share a line,
/// parted by " ; ".
[[nodiscard]] Documento leeDocumento(const std::filesystem::path& ruta);

}  // namespace orvemo::pruebas
