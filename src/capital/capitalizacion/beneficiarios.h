#pragma once

#include <array>
#include <string_view>

#include "capital/tarifas/ficheros_tarifa.h"

namespace orvemo::capital {

// Causes of the pension, by their place in the list.
enum Causa : int { kTotal, kAbsoluta, kGranInvalidez, kMuerte };
inline constexpr std::array<std::string_view, 4> kCausas{
    "Incapacidad Permanente Total", "Incapacidad Permanente Absoluta", "Gran Invalidez", "Muerte"};

/// A kind of beneficiaries of a pension of death: its text and the fields that it asks for.
struct TipoBeneficiarios {
    std::string_view texto;
    bool viudos;  ///< birth of the first widow and of the second
    bool dias;    ///< days married to each of them
    int hijos;    ///< births of other beneficiaries, up to three
    TopeHijo tope = TopeHijo::Veintiuno;
};

// clang-format off
/// The kinds, by their place in the list.
inline constexpr std::array kPapeles{
    TipoBeneficiarios{"Descendiente útil menor de 23 años",                     false, false, 1, TopeHijo::Veintitres},
    TipoBeneficiarios{"Descendiente inválido o ascendiente",                    false, false, 1},
    TipoBeneficiarios{"Viudo/a",                                                true,  false, 0},
    TipoBeneficiarios{"Dos Viudos/as",                                          true,  true,  0},
    TipoBeneficiarios{"Viudo/a y descendiente menor de 21 años",                true,  false, 1},
    TipoBeneficiarios{"Viudo/a y descenciente incapacitado",                    true,  false, 1},
    TipoBeneficiarios{"Dos descendientes útiles menores de 23 años",            false, false, 2, TopeHijo::Veintitres},
    TipoBeneficiarios{"Dos ascendientes",                                       false, false, 2},
    TipoBeneficiarios{"Dos Viudos/as y descendiente menor de 21 años",          true,  true,  1},
    TipoBeneficiarios{"Dos Viudos/as y descenciente incapacitado",              true,  true,  1},
    TipoBeneficiarios{"Tres o más descendientes menores de 23 años",            false, false, 3, TopeHijo::Veintitres},
    TipoBeneficiarios{"Viudo/a y 2 descendientes menores de 21 años",           true,  false, 2},
    TipoBeneficiarios{"Viudo/a y 3 o más descendientes menores de 21 años",     true,  false, 3},
    TipoBeneficiarios{"Viudo/a y dos descendientes inválidos",                  true,  false, 2},
    TipoBeneficiarios{"Dos Viudos/as y 2 descendientes menores de 21 años",     true,  true,  2},
    TipoBeneficiarios{"Dos Viudos/as y 3 o más descendientes menores de 21 años", true, true, 3},
    TipoBeneficiarios{"Dos Viudos/as y dos descendientes inválidos",            true,  true,  2},
};
// clang-format on

}  // namespace orvemo::capital
