#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "foundations/frame/catalogo.h"
#include "foundations/values/fechas.h"

namespace orvemo::lote {

/// What the batch does with the case file.
enum class Mandato { Calcula, Exporta, Importa };

/// What net to gross is asked for; who asks are the people of a file of cases of withholding.
struct OpcionesLiquidos {
    std::string neto = "915";  ///< as it is written on its field
    std::string extra = "2";
    int grupo = 1;     ///< of contribution, from 1
    int contrato = 0;  ///< entry of its list
};

/// What one run of the batch was asked for.
struct Opciones {
    Mandato mandato{Mandato::Calcula};
    std::string calculadora{};
    std::filesystem::path fichero{};               ///< the case file, wherever it lies
    std::optional<int> registro{};                 ///< that record alone
    std::optional<Fecha> hoy{};                    ///< instead of the machine's date
    std::optional<std::filesystem::path> datos{};  ///< application directory with the data files
    std::optional<std::filesystem::path> pdf{};    ///< directory that takes the printed reports
    std::optional<int> papel{};  ///< kind of beneficiaries, where the record doesn't keep it
    bool json = false;
    OpcionesLiquidos liquidos{};
};

/// An argument that can't be used; `what()` says so in Spanish.
class ArgumentoInservible : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The help or the list of calculators, and nothing else, was asked for; `what()` is its text.
class PideAyuda : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The names of the calculators, with commas between.
[[nodiscard]] std::string nombresDisponibles(Calculadoras catalogo);

/// Reads the command line, the program's name first. Throws ArgumentoInservible, PideAyuda.
[[nodiscard]] Opciones leeOpciones(const std::vector<std::string>& argumentos, Calculadoras catalogo);

}  // namespace orvemo::lote
