#include "lote/almacen_lote.h"

namespace orvemo::lote {

AlmacenLote::AlmacenLote(const std::filesystem::path& datos, const std::filesystem::path& fichero)
    : datos_{datos},
      lugar_{std::filesystem::absolute(fichero).parent_path()},
      fichero_{fichero.filename().string()} {}

bool AlmacenLote::existe(std::string_view nombre) const {
    return esElFichero(nombre) ? lugar_.existe(fichero_) : datos_.existe(nombre);
}

std::unique_ptr<FicheroAleatorio> AlmacenLote::abre(std::string_view nombre, Acceso acceso) {
    return esElFichero(nombre) ? lugar_.abre(fichero_, acceso) : datos_.abre(nombre, acceso);
}

std::string AlmacenLote::leeTodo(std::string_view nombre) const {
    return esElFichero(nombre) ? lugar_.leeTodo(fichero_) : datos_.leeTodo(nombre);
}

void AlmacenLote::sustituye(std::string_view nombre, std::string_view contenido) {
    if (esElFichero(nombre)) {
        lugar_.sustituye(fichero_, contenido);
    } else {
        datos_.sustituye(nombre, contenido);
    }
}

std::filesystem::path AlmacenLote::ruta(std::string_view nombre) const {
    return esElFichero(nombre) ? lugar_.ruta(fichero_) : datos_.ruta(nombre);
}

}  // namespace orvemo::lote
