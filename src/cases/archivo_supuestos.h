#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "foundations/values/almacen.h"
#include "foundations/values/fallos.h"

namespace orvemo {

/// `Estado` of a free slot; anything else is a case in use.
inline constexpr char kRegistroLibre = '*';
inline constexpr char kRegistroEnUso = ' ';

inline constexpr std::size_t kAnchoNombre = 80;
/// `Estado`, `NombreSupuesto` and a second name: what the lists of cases read.
inline constexpr std::size_t kAnchoCabecera = 1 + 2 * kAnchoNombre;

/// Record numbers are 16-bit: no case file passes this many.
inline constexpr int kMaxRegistros = 32767;

/// A case file holds, or would have to hold, more than kMaxRegistros.
class DemasiadosSupuestos final : public DesbordeNumerico {
  public:
    DemasiadosSupuestos(const std::string& fichero, int registros);
};

/// One line of a list of cases.
struct EntradaSupuesto {
    int registro;        ///< from 1
    std::string nombre;  ///< trimmed, UTF-8
};

/// The cases of one calculator: records of one length, numbered from 1, in a file of the application
/// directory. Nothing stays open between calls. A file that can't be opened, read or written throws
/// FicheroInaccesible; more records than kMaxRegistros throw DemasiadosSupuestos. A write that fails puts
/// back what stood there before, and one cut off by the program's end is put back when the file is opened
/// next.
class ArchivoSupuestos {
  public:
    /// Records of `longitud` bytes, at least kAnchoCabecera of them.
    ArchivoSupuestos(Almacen& almacen, std::string nombre, std::size_t longitud);

    [[nodiscard]] const std::string& nombre() const { return nombre_; }
    [[nodiscard]] std::size_t longitud() const { return longitud_; }

    /// The file's length over the record's, an exact half to even: a partial last record counts past its
    /// half.
    [[nodiscard]] int cuenta() const;

    /// The bytes of record r. Throws FicheroInaccesible for one that isn't there whole.
    [[nodiscard]] std::string lee(int r) const;

    /// The case of record r; nullopt for a free slot. Nothing past the head is looked at, but that must be
    /// there.
    [[nodiscard]] std::optional<EntradaSupuesto> entrada(int r) const;

    /// The cases in use in the order of their records; nothing past the heads is looked at.
    [[nodiscard]] std::vector<EntradaSupuesto> lista() const;

    /// Writes a whole record, in use, into the first free slot or at the end, and gives its number.
    int agrega(std::string bytes);

    /// Writes whole records as they are, each into the first free slot left or at the end: all of them or, if
    /// anything fails, none.
    void agregaTodos(std::span<const std::string> registros);

    /// Writes a whole record, in use, over record r (from 1), which may be the one after the last.
    void sobrescribe(int r, std::string bytes);

    /// Writes over the first record in use whose 80 bytes of `NombreSupuesto` are those of `bytes`; nullopt,
    /// and nothing written, without one.
    std::optional<int> sobrescribePorNombre(std::string bytes);

    /// `BorraRegistro`: a head with `Estado` "*" and its names cleared; the rest keeps its contents.
    void borra(int r);

  private:
    [[nodiscard]] std::unique_ptr<FicheroAleatorio> abre(Acceso acceso) const;
    /// So many bytes of record r from its first.
    [[nodiscard]] std::string leeEntero(int r, std::size_t ancho) const;
    [[nodiscard]] FicheroInaccesible falta(int r) const;
    [[nodiscard]] std::uint64_t posicion(int r) const;
    [[nodiscard]] int cuenta(FicheroAleatorio& fichero) const;
    void escribeEntero(FicheroAleatorio& fichero, int r, std::string_view bytes) const;

    Almacen& almacen_;
    std::string nombre_;
    std::size_t longitud_;
};

/// The list in Spanish alphabetical order: case and accents aside, ñ after n. Names that differ in those
/// alone stand in the order of their bytes, equal names in that of their records.
[[nodiscard]] std::vector<EntradaSupuesto> OrdenaAlfabeticamente(std::vector<EntradaSupuesto> lista);

}  // namespace orvemo
