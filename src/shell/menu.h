#pragma once

#include <array>
#include <string_view>

namespace orvemo {

// Measures of the main screen, in twips.
inline constexpr int kAnchoMenu = 9600;
inline constexpr int kAltoMenu = 6600;
inline constexpr int kAnchoOpcion = 2000;
inline constexpr int kAltoOpcion = 500;
inline constexpr int kFilasMenu = 8;

enum class Columna { Izquierda, Derecha };

/// A place of the grid of options; rows are counted from 1 and may lie off the panel.
struct Puesto {
    Columna columna;
    int fila;

    /// Twips from the left edge of `Menu`.
    [[nodiscard]] constexpr int left() const { return columna == Columna::Izquierda ? 135 : 7380; }
    /// Twips from the top of `Menu`.
    [[nodiscard]] constexpr int top() const { return 1305 + 585 * (fila - 1); }

    friend constexpr bool operator==(const Puesto&, const Puesto&) = default;
};

/// The place that a number of `config.nom` asks for: up to 8 down the left column, from 9 on down the right
/// one.
[[nodiscard]] constexpr Puesto puestoDeOrden(int orden) {
    return orden <= kFilasMenu ? Puesto{Columna::Izquierda, orden}
                               : Puesto{Columna::Derecha, orden - kFilasMenu};
}

/// What an option is about.
enum class Materia { Pensiones, Subsidios, NoContributivas, Salarios, Consulta };

[[nodiscard]] constexpr std::string_view tituloDe(Materia materia) {
    constexpr std::array<std::string_view, 5> kTitulos{
        "Pensiones", "Subsidios y desempleo", "No contributivas", "Salarios e impuestos", "Consulta"};
    return kTitulos[static_cast<std::size_t>(materia)];
}

/// How a screen comes up over the menu.
struct Apertura {
    bool espera;       ///< the hourglass shows while the screen is set up
    bool sobreElMenu;  ///< the screen lies exactly over the menu instead of keeping its own place
};

inline constexpr Apertura kCalculadora{.espera = true, .sobreElMenu = true};
inline constexpr Apertura kConversion{.espera = false, .sobreElMenu = true};
inline constexpr Apertura kInformacion{.espera = false, .sobreElMenu = false};
inline constexpr Apertura kConfiguracion{.espera = true, .sobreElMenu = false};

/// What is fixed of an option of the menu; its place in the list is its index.
struct DefOpcion {
    std::string_view rotulo;
    std::string_view pantalla;  ///< screen that it opens
    Puesto puesto;              ///< where it stands unless `config.nom` moves it
    Materia materia;
    Apertura apertura = kCalculadora;
};

inline constexpr int kNumOpciones = 16;
inline constexpr int kOpcionVerBaseActual = 13;  ///< in `config.nom` this index is a switch, no option
inline constexpr int kOpcionFin = 15;

inline constexpr std::array<DefOpcion, kNumOpciones> kOpciones{{
    {"Jubilación", "PensionFrm", {Columna::Izquierda, 1}, Materia::Pensiones},
    {"Incapacidad Permanente", "InvaFrm", {Columna::Izquierda, 2}, Materia::Pensiones},
    {"Muerte y Supervivencia", "MuerteFrm", {Columna::Izquierda, 3}, Materia::Pensiones},
    {"Jubilación e Invalidez no Contributiva", "NoConFrm", {Columna::Izquierda, 4}, Materia::NoContributivas},
    {"Prestaciones Familiares no ContrIbutivas",
     "FamiliarFrm",
     {Columna::Izquierda, 5},
     Materia::NoContributivas},
    {"Desempleo", "DesempFrm", {Columna::Izquierda, 6}, Materia::Subsidios},
    {"Maternidad", "MaterFrm", {Columna::Izquierda, 7}, Materia::Subsidios},
    {"Incapacidad Temporal", "ILTFrm", {Columna::Derecha, 1}, Materia::Subsidios},
    {"Capitalización de pensiones", "CapitFrm", {Columna::Derecha, 2}, Materia::Pensiones},
    {"Cálculo de Nóminas", "NominaFrm", {Columna::Derecha, 3}, Materia::Salarios},
    {"Conversión de líquidos en brutos",
     "LiquidosFrm",
     {Columna::Derecha, 4},
     Materia::Salarios,
     kConversion},
    {"Retenciones IRPF", "RetIrpfFrm", {Columna::Derecha, 5}, Materia::Salarios},
    {"Fondo bibliográfico", "FondoFrm", {Columna::Derecha, 6}, Materia::Consulta, kInformacion},
    {"Información", "PresentaFrm", {Columna::Derecha, 7}, Materia::Consulta, kInformacion},
    {"Riesgo Embarazo", "RiesgoEmbarazo", {Columna::Izquierda, 8}, Materia::Subsidios},
    {"&Fin del Programa", "", {Columna::Derecha, 8}, Materia::Consulta},
}};

}  // namespace orvemo
