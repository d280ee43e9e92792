#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundations/frame/calculadora.h"

namespace orvemo::pruebas {

/// A worked story of the user's manual: a table "| Campo | Valor |" with what is written on each field, by
/// its label without the colon, and after it a block between "```" with the conclusions.
struct CasoDelManual {
    std::vector<std::pair<std::string, std::string>> campos;
    std::string conclusion;  ///< lines ended by "\n"
};

namespace manual {

inline std::string_view sinDosPuntos(std::string_view rotulo) {
    const auto fin = rotulo.find_last_not_of(": ");
    return fin == std::string_view::npos ? rotulo : rotulo.substr(0, fin + 1);
}

/// "| uno | dos |" in two.
inline std::pair<std::string, std::string> celdas(std::string_view fila) {
    const auto medio = fila.find(" | ");
    const auto fin = fila.rfind(" |");
    return {std::string{fila.substr(2, medio - 2)}, std::string{fila.substr(medio + 3, fin - medio - 3)}};
}

/// The lines between a heading "## capitulo" and the next one.
inline std::vector<std::string> lineasDe(const std::string& ruta, std::string_view capitulo) {
    std::ifstream fichero{ruta};
    std::vector<std::string> lineas;
    bool dentro = false;
    for (std::string linea; std::getline(fichero, linea);) {
        if (linea.starts_with("## ")) dentro = linea.substr(3) == capitulo;
        if (dentro) lineas.push_back(linea);
    }
    return lineas;
}

}  // namespace manual

/// The stories that a chapter of the manual tells, in order.
inline std::vector<CasoDelManual> casosDelManual(const std::string& ruta, std::string_view capitulo) {
    enum class Lugar { Texto, Tabla, Espera, Conclusion } lugar = Lugar::Texto;
    std::vector<CasoDelManual> casos;
    for (const std::string& linea : manual::lineasDe(ruta, capitulo)) {
        if (lugar == Lugar::Texto && linea == "| Campo | Valor |") {
            casos.emplace_back();
            lugar = Lugar::Tabla;
        } else if (lugar == Lugar::Tabla && linea.starts_with("| ")) {
            casos.back().campos.push_back(manual::celdas(linea));
        } else if (linea.empty() && lugar == Lugar::Tabla) {
            lugar = Lugar::Espera;
        } else if (linea == "```") {
            lugar = lugar == Lugar::Espera ? Lugar::Conclusion : Lugar::Texto;
        } else if (lugar == Lugar::Conclusion) {
            casos.back().conclusion += linea + "\n";
        }
    }
    return casos;
}

/// Writes on the field of panel on view that bears the label, as the user would.
inline void rellenaComoElManual(Calculadora& frm, const std::string& rotulo, const std::string& valor) {
    const auto esEse = [&](const Campo& campo) {
        return frm.enPantalla(campo) && manual::sinDosPuntos(campo.rotulo()) == rotulo;
    };
    const auto campo = std::ranges::find_if(frm.campos(), esEse);
    ASSERT_NE(campo, frm.campos().end()) << "not on view: " << rotulo;
    ASSERT_TRUE(frm.foco(*campo)) << rotulo;
    if (campo->def().clase == Clase::Casilla) {
        frm.marca(*campo, valor == "sí");
    } else if (campo->def().clase == Clase::Lista) {
        const auto opcion = std::ranges::find(campo->opciones(), valor);
        ASSERT_NE(opcion, campo->opciones().end()) << valor;
        frm.elige(*campo, static_cast<int>(opcion - campo->opciones().begin()));
    } else {
        frm.escribe(*campo, valor);
    }
}

/// The conclusions of a case of one panel of data, its line ends as "\n" and none missing at the end.
inline std::string conclusionDelPrograma(Calculadora& frm) {
    EXPECT_TRUE(frm.pulsa(frm.Siguiente));
    std::string texto = frm.textoConclusion();
    std::erase(texto, '\r');
    if (!texto.ends_with('\n')) texto += '\n';
    return texto;
}

/// Fills the calculator with each story of the chapter and holds the manual to what the program says.
template <typename Frm>
void compruebaManual(Entorno& entorno, const std::string& ruta, std::string_view capitulo) {
    SCOPED_TRACE(capitulo);
    const auto casos = casosDelManual(ruta, capitulo);
    ASSERT_FALSE(casos.empty()) << "the chapter tells no story";
    for (const CasoDelManual& caso : casos) {
        Frm frm{entorno};
        frm.Inicia();
        for (const auto& [rotulo, valor] : caso.campos) rellenaComoElManual(frm, rotulo, valor);
        EXPECT_EQ(conclusionDelPrograma(frm), caso.conclusion);
    }
}

}  // namespace orvemo::pruebas
