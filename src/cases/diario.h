#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundations/values/almacen.h"

namespace orvemo {

/// What the name of a journal adds to that of its case file.
inline constexpr std::string_view kSufijoDiario = ".diario";

/// What a case file holds where an operation is about to write.
struct LoAnterior {
    std::uint64_t posicion = 0;
    std::uint64_t longitud = 0;  ///< of the whole file
    std::uint64_t ancho = 0;     ///< bytes that will be written
    std::string bytes;           ///< of those, the ones that are there

    [[nodiscard]] static LoAnterior de(FicheroAleatorio& fichero, std::uint64_t posicion, std::size_t ancho);

    /// Puts it back and gives whether it stands there again. The bytes first and then the file's length: a
    /// case half written at the end would pass for a whole one.
    [[nodiscard]] bool repone(FicheroAleatorio& fichero) const;
};

/// The journal of a case file: while a record is being written, a small file beside it ("desemp.nom.diario")
/// holds what stood there. Whoever opens the case file next, after a program killed in mid write, puts that
/// back. A journal that isn't whole belongs to a write that never began. No finished operation leaves one.
class Diario {
  public:
    Diario(Almacen& almacen, const std::string& fichero);

    /// Writes the journal. Where it can't be (a full disk takes changes of old cases, but no new file) the
    /// operation goes on without one.
    void anota(const LoAnterior& anterior);
    void borra();
    /// Puts back what a journal left behind tells; nothing happens without one.
    void recupera();

  private:
    Almacen& almacen_;
    std::string fichero_;
    std::string nombre_;
};

}  // namespace orvemo
