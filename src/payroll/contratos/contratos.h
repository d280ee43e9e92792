#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvemo::nomina {

inline constexpr std::string_view kFicheroContratos = "CONTRATO.NOM";

/// One stretch of an incentive: so much percent up to so many years from the start of the contract.
struct TramoIncentivo {
    double Pct = 0;
    std::int32_t Anios = 0;
};

/// A type of contract.
struct ContratoNomina {
    std::string Codigo;  ///< four characters
    std::string Texto;
    std::string Clave;          ///< key of the TC-2
    std::string Modo;           ///< " ", "D" by days or "H" by hours
    std::string TipoIncentivo;  ///< "B" a bonus, "R" a reduction
    std::string Flags;          ///< three of "S" or "N": common contingencies, accidents, the rest
    TramoIncentivo tramo1, tramo2, tramo3;
    double RecargoEmpresa = 0;  ///< percentage points on unemployment
    double RecargoTrab = 0;
};

/// An item of the list `NomiContrato`: its text and the number, from 1, of its row.
struct ItemContrato {
    std::string texto;
    std::int32_t indice;
};

/// The types of contract and their groups.
class Contratos {
  public:
    /// Reads the whole text of "CONTRATO.NOM", Windows-1252. Throws FicheroMalFormado.
    explicit Contratos(std::string_view contenido = {});

    [[nodiscard]] const std::vector<std::string>& grupos() const { return grupos_; }
    [[nodiscard]] const std::vector<ContratoNomina>& filas() const { return filas_; }
    /// The row of that number, from 1. Throws TextoIlegible.
    [[nodiscard]] const ContratoNomina& fila(std::int32_t indice) const;
    /// Number, from 1, of the first row of that code of four characters. Throws TextoIlegible.
    [[nodiscard]] std::int32_t indiceDe(std::string_view Codigo) const;
    /// `ContratosDelGrupo`: the rows whose first three characters are those of the group's text.
    [[nodiscard]] std::vector<ItemContrato> delGrupo(std::string_view Texto) const;

  private:
    void leeLinea(std::string linea, std::string& clase);

    std::vector<std::string> grupos_;
    std::vector<ContratoNomina> filas_;
};

/// True for the codes of part-time contracts: those that begin with "5" or "2". Group 300 is not among them:
/// a code has four characters and its own never equals "300".
[[nodiscard]] bool EsContratoParcial(std::string_view Codigo);

}  // namespace orvemo::nomina
