#include "shell/config_nom.h"

#include <string>

namespace orvemo {

ConfigNom::ConfigNom(Almacen& almacen) : fichero_{almacen.abre(kFicheroConfig, Acceso::Lectura)} {}

RegistroConfig ConfigNom::lee(int r) {
    std::string bytes(kDisenoConfig.longitud(), '\0');
    fichero_->lee(static_cast<std::uint64_t>(r - 1) * bytes.size(), bytes);
    RegistroConfig registro;
    kDisenoConfig.lee(bytes, registro);
    return registro;
}

void EscribeConfig(Almacen& almacen, const std::array<RegistroConfig, kRegistrosConfig>& registros) {
    std::string bytes;
    for (const RegistroConfig& registro : registros) bytes += kDisenoConfig.escribe(registro);
    almacen.sustituye(kFicheroConfig, bytes);
}

}  // namespace orvemo
