#include "lote/traslado.h"

#include <string>
#include <vector>

#include "cases/archivo_supuestos.h"
#include "cases/texto_caso.h"
#include "lote/almacen_lote.h"
#include "lote/lineas.h"

namespace orvemo::lote {

namespace {

/// The bytes of the record that a line tells.
std::string leeRegistro(const Forma& forma, const std::string& linea) {
    std::string bytes = LeeCampos(forma, LeeJson(linea));
    if (bytes.front() == kRegistroLibre)
        throw CampoIncorrecto{forma.miembros.front().nombre,
                              "un supuesto no lleva \"*\", que es de los huecos"};
    return bytes;
}

}  // namespace

void Exporta(const RegistroCatalogo& registro, const std::filesystem::path& fichero, std::ostream& salida) {
    AlmacenLote almacen{fichero.parent_path(), fichero};
    const ArchivoSupuestos archivo{almacen, fichero.string(), registro.forma->ancho};
    std::string linea;
    const int cuenta = archivo.cuenta();
    for (int r = 1; r <= cuenta; ++r) {
        const std::string bytes = archivo.lee(r);
        if (bytes.front() == kRegistroLibre) continue;
        linea.clear();
        EscribeCampos(linea, *registro.forma, bytes);
        linea += '\n';
        if (!salida.write(linea.data(), static_cast<std::streamsize>(linea.size()))) return;
    }
}

bool Importa(const RegistroCatalogo& registro, const std::filesystem::path& fichero, std::istream& entrada,
             std::ostream& errores) {
    std::vector<std::string> casos;
    bool todosBuenos = true;
    Lineas lineas{entrada};
    while (const auto linea = lineas.siguiente()) {
        try {
            casos.push_back(leeRegistro(*registro.forma, *linea));
        } catch (const Fallo& fallo) {
            todosBuenos = false;
            errores << "Línea " << lineas.numero() << ": " << fallo.what() << ".\n";
        }
        if (casos.size() > kMaxRegistros)
            throw DemasiadosSupuestos{fichero.filename().string(), static_cast<int>(casos.size())};
    }
    if (!todosBuenos) return false;
    DirectorioAplicacion directorio{std::filesystem::absolute(fichero).parent_path()};
    ArchivoSupuestos{directorio, fichero.filename().string(), registro.forma->ancho}.agregaTodos(casos);
    return true;
}

}  // namespace orvemo::lote
