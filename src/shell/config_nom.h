#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "cases/registro.h"
#include "foundations/values/almacen.h"

namespace orvemo {

inline constexpr const char* kFicheroConfig = "config.nom";

/// One record of `config.nom`: the program's title (record 1) or an option of the menu.
struct RegistroConfig {
    std::int32_t Numero = 0;   ///< 999 in record 1, else the option's index; written, never read
    std::int16_t Activa = 0;   ///< -1 true, 0 false
    orvemo::Texto<248> Texto;  ///< title, or what the option shows instead of opening
    orvemo::Texto<2> Orden;    ///< place in the menu, blank for the default one

    /// Any value but 0 counts as true.
    [[nodiscard]] bool activa() const { return Activa != 0; }
    void ponActiva(bool activa) { Activa = activa ? -1 : 0; }
};

inline constexpr Diseno kDisenoConfig{
    256, Tramo{0, "Numero", &RegistroConfig::Numero}, Tramo{4, "Activa", &RegistroConfig::Activa},
    Tramo{6, "Texto", &RegistroConfig::Texto}, Tramo{254, "Orden", &RegistroConfig::Orden}};

inline constexpr std::int32_t kNumeroTitulo = 999;
inline constexpr int kRegistroTitulo = 1;
/// Options with a record: indices 0 to 14.
inline constexpr int kOpcionesConfig = 15;
inline constexpr int kRegistrosConfig = kOpcionesConfig + 1;

/// The record of the option with this index.
[[nodiscard]] constexpr int registroDeOpcion(int indice) {
    return indice + 2;
}

/// `config.nom` open for reading while the object lives. An absent file is created empty.
class ConfigNom {
  public:
    /// Throws FicheroInaccesible.
    explicit ConfigNom(Almacen& almacen);

    /// Record r, from 1; what lies beyond the end of the file reads as blank or zero. Throws
    /// FicheroInaccesible.
    [[nodiscard]] RegistroConfig lee(int r);

  private:
    std::unique_ptr<FicheroAleatorio> fichero_;
};

/// Writes the 16 records as the whole file. Throws FicheroInaccesible, the old file standing as it was.
void EscribeConfig(Almacen& almacen, const std::array<RegistroConfig, kRegistrosConfig>& registros);

}  // namespace orvemo
