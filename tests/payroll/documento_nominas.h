#pragma once

#include <map>
#include <string>
#include <vector>

#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/nomina_registro.h"

namespace orvemo::nomina {

/// A month and what is expected of it: figures by name, or what the user is told.
struct Historia {
    std::string titulo{};
    RegistroNomina registro{};
    std::map<std::string, std::string> espera{};
    bool fallo = false;
};

/// The months of "nominas.txt", over its own contracts and epigraphs.
struct Documento {
    std::string contratos{}, epigrafes{};
    std::vector<Historia> historias{};

    [[nodiscard]] TablasNomina tablas() const { return {Contratos{contratos}, Epigrafes{epigrafes}}; }
};

/// Reads the document: rows of the tables, entries of every month, and the months.
[[nodiscard]] Documento leeDocumento();

}  // namespace orvemo::nomina
