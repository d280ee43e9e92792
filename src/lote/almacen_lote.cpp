#include "lote/almacen_lote.h"

#include <algorithm>
#include <utility>

#include "cases/diario.h"

namespace orvemo::lote {

namespace {

/// Reads a good stretch at a time: a call to the disk serves many cases.
class LecturaAdelantada final : public FicheroAleatorio {
  public:
    explicit LecturaAdelantada(std::unique_ptr<FicheroAleatorio> fichero) : fichero_{std::move(fichero)} {}

    [[nodiscard]] std::uint64_t longitud() override { return fichero_->longitud(); }
    std::size_t lee(std::uint64_t posicion, std::span<char> destino) override {
        if (!tiene(posicion, destino.size())) adelanta(posicion, destino.size());
        return tramo_.copy(destino.data(), destino.size(), static_cast<std::size_t>(posicion - desde_));
    }
    std::size_t escribe(std::uint64_t, std::span<const char>) override { return 0; }
    bool corta(std::uint64_t) override { return false; }

  private:
    static constexpr std::size_t kTramo = 65536;

    [[nodiscard]] bool tiene(std::uint64_t posicion, std::size_t cuantos) const {
        return posicion >= desde_ && posicion + cuantos <= desde_ + tramo_.size();
    }
    void adelanta(std::uint64_t posicion, std::size_t cuantos) {
        tramo_.resize(std::max(cuantos, kTramo));
        desde_ = posicion;
        tramo_.resize(fichero_->lee(posicion, tramo_));
    }

    std::unique_ptr<FicheroAleatorio> fichero_;
    std::uint64_t desde_ = 0;  ///< place of the stretch in the file
    std::string tramo_;
};

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
    : datos_{datos},
      comoSeDio_{fichero.string()},
      fichero_{std::make_unique<LecturaAdelantada>(AbreParaLeer(fichero))} {
    DirectorioAplicacion suCarpeta{std::filesystem::absolute(fichero).parent_path()};
    Diario{suCarpeta, fichero.filename().string()}.recupera();
}

bool AlmacenLote::esElFichero(std::string_view nombre) const {
    return nombre == nombre_ || nombre == comoSeDio_;
}

bool AlmacenLote::existe(std::string_view nombre) const {
    // Nor is a journal looked for beside the file at every case: nothing is written here.
    if (nombre.ends_with(kSufijoDiario) &&
        esElFichero(nombre.substr(0, nombre.size() - kSufijoDiario.size())))
        return false;
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
