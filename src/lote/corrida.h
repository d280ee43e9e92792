#pragma once

#include <optional>
#include <ostream>

#include "cases/archivo_supuestos.h"
#include "lote/opciones_lote.h"
#include "lote/salida.h"

namespace orvemo::lote {

/// What computes the cases of a file.
class Calculo {
  public:
    Calculo() = default;
    Calculo(const Calculo&) = delete;
    Calculo& operator=(const Calculo&) = delete;
    virtual ~Calculo() = default;

    [[nodiscard]] virtual int cuenta() const = 0;
    /// The case of that record; nullopt for a free slot. Throws Fallo for one that isn't there whole.
    [[nodiscard]] virtual std::optional<EntradaSupuesto> entrada(int registro) const = 0;
    /// Whatever fails stands in the result.
    [[nodiscard]] virtual Resultado calcula(const EntradaSupuesto& entrada) = 0;
};

/// Computes the records asked for and writes each result as soon as it's there; on the terminal, if there is
/// one, it tells how far it has come. Gives the exit status. Throws ArgumentoInservible.
int calculaTodo(const Opciones& opciones, Calculo& calculo, std::ostream& salida, std::ostream* terminal);

}  // namespace orvemo::lote
