// The stories of the user's manual are what the program says, with the data that ship.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "apoyo/entorno_falso.h"
#include "catalogue/catalogo.h"
#include "foundations/frame/asistente.h"
#include "foundations/values/textos.h"
#include "payroll/pantallas/paneles.h"

namespace orvemo::pruebas {
namespace {

/// A worked story of the user's manual: a table "| Campo | Valor |" with what is written on each field, by
/// its label without the colon (in a grid, by heading and row: "Desde 2"), and after it a block between "```"
/// with the conclusions.
struct CasoDelManual {
    std::vector<std::pair<std::string, std::string>> campos;
    std::string conclusion;  ///< lines ended by "\n"
};

std::string_view sinDosPuntos(std::string_view rotulo) {
    const auto fin = rotulo.find_last_not_of(": ");
    return fin == std::string_view::npos ? rotulo : rotulo.substr(0, fin + 1);
}

/// How the manual names a field.
std::string etiquetaDe(Calculadora& frm, const Campo& campo) {
    const Grupo* grupo = campo.def().grupo;
    if (grupo == nullptr || grupo->def().encabezados.empty())
        return std::string{sinDosPuntos(campo.rotulo())};
    int antes = 0;
    for (const Campo& otro : frm.campos()) {
        if (&otro == &campo) break;
        if (otro.def().grupo == grupo) ++antes;
    }
    const int columnas = grupo->def().columnas;
    return grupo->def().encabezados.at(static_cast<std::size_t>(antes % columnas)) + " " +
           std::to_string(antes / columnas + 1);
}

/// The field of the panel on view that bears the label; null without one.
Campo* busca(Calculadora& frm, const std::string& rotulo) {
    const auto esEse = [&](const Campo& campo) {
        return frm.enPantalla(campo) && etiquetaDe(frm, campo) == rotulo;
    };
    const auto campo = std::ranges::find_if(frm.campos(), esEse);
    return campo == frm.campos().end() ? nullptr : &*campo;
}

/// "| uno | dos |" in two.
std::pair<std::string, std::string> celdas(std::string_view fila) {
    const auto medio = fila.find(" | ");
    const auto fin = fila.rfind(" |");
    return {std::string{fila.substr(2, medio - 2)}, std::string{fila.substr(medio + 3, fin - medio - 3)}};
}

/// The lines between a heading "## capitulo" and the next one.
std::vector<std::string> lineasDe(const std::string& ruta, std::string_view capitulo) {
    std::ifstream fichero{ruta};
    std::vector<std::string> lineas;
    bool dentro = false;
    for (std::string linea; std::getline(fichero, linea);) {
        if (linea.starts_with("## ")) dentro = linea.substr(3) == capitulo;
        if (dentro) lineas.push_back(linea);
    }
    return lineas;
}

/// The stories that a chapter of the manual tells, in order.
std::vector<CasoDelManual> casosDelManual(const std::string& ruta, std::string_view capitulo) {
    enum class Lugar { Texto, Tabla, Espera, Conclusion } lugar = Lugar::Texto;
    std::vector<CasoDelManual> casos;
    for (const std::string& linea : lineasDe(ruta, capitulo)) {
        if (lugar == Lugar::Texto && linea == "| Campo | Valor |") {
            casos.emplace_back();
            lugar = Lugar::Tabla;
        } else if (lugar == Lugar::Tabla && linea.starts_with("| ")) {
            casos.back().campos.push_back(celdas(linea));
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

/// The button that goes on from the panel on view.
Campo& siguiente(Calculadora& frm) {
    if (auto* asistente = dynamic_cast<Asistente*>(&frm)) return asistente->Siguiente;
    return frm.campo("NomiSig" + std::to_string(frm.PantallaActual()));
}

/// Writes on the field that bears the label, as the user would, going on to the panel where it stands.
void rellenaComoElManual(Calculadora& frm, const std::string& rotulo, const std::string& valor) {
    Campo* campo = busca(frm, rotulo);
    while (campo == nullptr && frm.PantallaActual() + 1 < frm.ultimaPantalla()) {
        ASSERT_TRUE(frm.pulsa(siguiente(frm))) << rotulo;
        campo = busca(frm, rotulo);
    }
    ASSERT_NE(campo, nullptr) << "not on view: " << rotulo;
    ASSERT_TRUE(frm.foco(*campo)) << rotulo;
    if (campo->def().clase == Clase::Boton) {
        ASSERT_TRUE(frm.pulsa(*campo)) << rotulo;
    } else if (campo->def().clase == Clase::Casilla) {
        frm.marca(*campo, valor == "sí");
    } else if (campo->esLista()) {
        const auto opcion = std::ranges::find(campo->opciones(), valor, Recorta);
        ASSERT_NE(opcion, campo->opciones().end()) << valor;
        frm.elige(*campo, static_cast<int>(opcion - campo->opciones().begin()));
    } else {
        frm.escribe(*campo, valor);
    }
}

/// What the program says of the case on screen, conclusions or a receipt, its line ends as "\n" and none
/// missing at the end.
std::string conclusionDelPrograma(Calculadora& frm) {
    auto* asistente = dynamic_cast<Asistente*>(&frm);
    const int ultima = asistente == nullptr ? nomina::kRecibo : frm.ultimaPantalla();
    for (int i = 0; i < frm.numPantallas() && frm.PantallaActual() != ultima; ++i) {
        EXPECT_TRUE(frm.pulsa(siguiente(frm)));
    }
    std::string texto = asistente == nullptr ? frm.textoResultados() : asistente->textoConclusion();
    std::erase(texto, '\r');
    if (!texto.ends_with('\n')) texto += '\n';
    return texto;
}

struct Capitulo {
    const char* titulo;
    const char* calculadora;
};
constexpr Capitulo kCapitulos[] = {
    {"Jubilación", "jubilacion"},
    {"Incapacidad permanente", "incapacidad"},
    {"Muerte y supervivencia", "muerte"},
    {"Desempleo", "desempleo"},
    {"Incapacidad temporal", "it"},
    {"Maternidad", "maternidad"},
    {"Riesgo durante el embarazo", "riesgo"},
    {"Jubilación e invalidez no contributivas", "nocontributiva"},
    {"Protección familiar", "familiar"},
    {"Capitalización de pensiones", "capital"},
    {"Nóminas", "nomina"},
    {"Retenciones del IRPF", "irpf"},
};

TEST(Manual, TellsItsStoriesAsTheProgramDoes) {
    EntornoFalso mundo;
    const DirectorioAplicacion datos{ORVEMO_DATOS};
    for (const char* fichero :
         {"ipc.txt", "tarif1.nom", "tarif4.nom", "tarif6.nom", "CONTRATO.NOM", "EPIG.NOM"})
        mundo.almacen[fichero] = datos.leeTodo(fichero);
    for (const auto& [titulo, calculadora] : kCapitulos) {
        SCOPED_TRACE(titulo);
        const auto casos = casosDelManual(ORVEMO_MANUAL, titulo);
        EXPECT_FALSE(casos.empty()) << "the chapter tells no story";
        const Calculadoras catalogo = CalculadorasDelPrograma();
        const auto entrada = std::ranges::find(catalogo, calculadora, &EntradaCatalogo::clave);
        for (const CasoDelManual& caso : casos) {
            const auto abierta = entrada->registro.abre(mundo.entorno);
            Calculadora& frm = *abierta;
            frm.Inicia();
            for (const auto& [rotulo, valor] : caso.campos) rellenaComoElManual(frm, rotulo, valor);
            EXPECT_EQ(conclusionDelPrograma(frm), caso.conclusion);
        }
    }
    EXPECT_THAT(mundo.mensajes.dichos, testing::IsEmpty());
}

}  // namespace
}  // namespace orvemo::pruebas
