#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvemo::nomina {

/// What the second screen holds when it is left, as texts of its fields.
struct DatosAdicionales {
    bool hayExtra = false;    ///< some concept of period "E"
    bool hayBaja = false;     ///< sick leave, work accident or maternity among the incidences
    bool hayParcial = false;  ///< partial unemployment
    int Mes = 1;              ///< 1 to 12
    std::string FechaExtra1{}, FechaExtra2{};
    std::string DiasAnt{}, BaseCCAnt{}, BaseATEPAnt{}, HEAnt{}, HEAnioAnt{};
    std::string Promedio6Meses{};
};

/// A field that fails: what to say, where the focus goes and what the field takes.
struct AvisoCampo {
    std::string campo;
    std::string mensaje;
    std::optional<std::string> propuesta{};
};

/// `CompruebaAdicionales`: all that is wrong, in order; the last one keeps the focus.
[[nodiscard]] std::vector<AvisoCampo> CompruebaAdicionales(DatosAdicionales datos);

/// `CompruebaDatosCese`: what is wrong with the leaving date of the first screen; empty when nothing is.
[[nodiscard]] std::string CompruebaDatosCese(const std::string& FechaBaja);

}  // namespace orvemo::nomina
