#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvemo::nomina {

/// How the amount of a concept behaves in the month.
struct FlagsConcepto {
    bool salarial = false;    ///< group "1. Percepciones salariales" of the receipt
    bool sinBaja = false;     ///< not paid on the days of leave
    bool sinPermiso = false;  ///< not paid on the days of unpaid leave
    bool cotizaCC = false;    ///< enters the base for common contingencies
    bool cotizaAT = false;    ///< enters the base for accidents
    bool tributa = false;     ///< enters the base of the tax

    friend constexpr bool operator==(const FlagsConcepto&, const FlagsConcepto&) = default;
};

/// Six of "S" or "N", in the order of the members.
[[nodiscard]] std::string TextoFlags(const FlagsConcepto& flags);

inline constexpr double kSinLimite = 99999999;
inline constexpr bool kOculto = false;

/// A row of the catalogue of concepts.
struct ConceptoNomina {
    std::string_view Codigo;  ///< two characters
    std::string_view Texto;   ///< whole, as the help list shows it
    FlagsConcepto Flags;
    char Periodicidad;                  ///< ' ' the user chooses; 'A' or 'E' fixed
    double importeMaximo = kSinLimite;  ///< euros, as the law tells it
    bool visible = true;                ///< the others are added by the calculation alone

    /// The text as stored: 40 characters.
    [[nodiscard]] std::string_view Descripcion() const;
    /// The greatest amount accepted, in whole euros.
    [[nodiscard]] std::int32_t Limite() const;
};

/// The 85 rows in their order.
[[nodiscard]] std::span<const ConceptoNomina> CatalogoConceptos();

/// First row of that code of two characters; nullptr when there is none.
[[nodiscard]] const ConceptoNomina* ConceptoDe(std::string_view Codigo);

/// Flags of a code; none for one that isn't there.
[[nodiscard]] FlagsConcepto FlagsDe(std::string_view Codigo);

/// Text of a code as stored; "???" for one that isn't there.
[[nodiscard]] std::string_view TextoConcepto(std::string_view Codigo);

/// What a typed code finds: 0 for a blank one, -1 for an unknown one, otherwise its row from 1, and its
/// period.
struct HallazgoConcepto {
    int indice;
    char Periodicidad;
};
[[nodiscard]] HallazgoConcepto BuscaConcepto(std::string_view Codigo);

/// Items of the help lists: "01. Salario Base", "1. Baja por…".
[[nodiscard]] std::vector<std::string> ListaConceptos();
[[nodiscard]] std::vector<std::string> ListaIncidencias();

/// From its fifth character on, the item of the list that begins with the code; "¿¿¿???" when none does and
/// "" for a blank code.
[[nodiscard]] std::string TextoDeLista(std::string_view Codigo, std::span<const std::string> lista);

/// From its fourth character on, the item of the list that begins with the code; "" when none does.
[[nodiscard]] std::string TextoIncidencia(std::string_view Codigo, std::span<const std::string> lista);

/// 0 for a blank code, the position from 1 of its item, or -1.
[[nodiscard]] int IndiceIncidencia(std::string_view Codigo, std::span<const std::string> lista);

}  // namespace orvemo::nomina
