#include "lote/almacen_lote.h"

#include "cases/diario.h"

namespace orvemo::lote {

namespace {

/// A file that stays open when its borrower closes it, and takes nothing.
class Prestado final : public FicheroAleatorio {
  public:
    explicit Prestado(FicheroAleatorio& fichero) : fichero_{fichero} {}

    [[nodiscard]] std::uint64_t longitud() override { return fichero_.longitud(); }
    std::size_t lee(std::uint64_t posicion, std::span<char> destino) override {
        return fichero_.lee(posicion, destino);
    }
    std::size_t escribe(std::uint64_t, std::span<const char>) override { return 0; }
    bool corta(std::uint64_t) override { return false; }

  private:
    FicheroAleatorio& fichero_;
};

}  // namespace

AlmacenLote::AlmacenLote(const std::filesystem::path& datos, const std::filesystem::path& fichero)
    : datos_{datos}, comoSeDio_{fichero.string()}, fichero_{AbreParaLeer(fichero)} {
    DirectorioAplicacion suCarpeta{std::filesystem::absolute(fichero).parent_path()};
    Diario{suCarpeta, fichero.filename().string()}.recupera();
}

bool AlmacenLote::esElFichero(std::string_view nombre) const {
    return nombre == nombre_ || nombre == comoSeDio_;
}

bool AlmacenLote::existe(std::string_view nombre) const {
    // Nor is a journal looked for beside the file at every case: nothing is written here.
    if (nombre.starts_with(nombre_) && nombre.ends_with(kSufijoDiario)) return false;
    return esElFichero(nombre) || datos_.existe(nombre);
}

std::unique_ptr<FicheroAleatorio> AlmacenLote::abre(std::string_view nombre, Acceso acceso) {
    if (esElFichero(nombre)) return std::make_unique<Prestado>(*fichero_);
    return datos_.abre(nombre, acceso);
}

std::string AlmacenLote::leeHasta(std::string_view nombre, std::size_t maximo) const {
    return datos_.leeHasta(nombre, maximo);
}

std::string AlmacenLote::leeTramo(std::string_view nombre, std::uint64_t posicion,
                                  std::size_t longitud) const {
    return datos_.leeTramo(nombre, posicion, longitud);
}

void AlmacenLote::sustituye(std::string_view nombre, std::string_view contenido) {
    datos_.sustituye(nombre, contenido);
}

bool AlmacenLote::elimina(std::string_view nombre) {
    return datos_.elimina(nombre);
}

std::filesystem::path AlmacenLote::ruta(std::string_view nombre) const {
    return datos_.ruta(nombre);
}

}  // namespace orvemo::lote
