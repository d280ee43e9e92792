#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "foundations/values/almacen.h"

namespace orvemo::lote {

/// The application directory of a batch: the calculator's case file is the one given, whatever its name and
/// place, open to be read as long as the batch lasts; everything else comes from the data directory.
class AlmacenLote final : public Almacen {
  public:
    /// Throws FicheroInaccesible.
    AlmacenLote(const std::filesystem::path& datos, const std::filesystem::path& fichero);

    /// Name under which the calculator opens its case file.
    void ponNombreDelFichero(std::string nombre) { nombre_ = std::move(nombre); }

    [[nodiscard]] bool existe(std::string_view nombre) const override;
    [[nodiscard]] std::unique_ptr<FicheroAleatorio> abre(std::string_view nombre, Acceso acceso) override;
    [[nodiscard]] std::string leeHasta(std::string_view nombre, std::size_t maximo) const override;
    [[nodiscard]] std::string leeTramo(std::string_view nombre, std::uint64_t posicion,
                                       std::size_t longitud) const override;
    void sustituye(std::string_view nombre, std::string_view contenido) override;
    bool elimina(std::string_view nombre) override;
    [[nodiscard]] std::filesystem::path ruta(std::string_view nombre) const override;

  private:
    [[nodiscard]] bool esElFichero(std::string_view nombre) const;

    DirectorioAplicacion datos_;
    std::string comoSeDio_;
    std::unique_ptr<FicheroAleatorio> fichero_;
    std::string nombre_;
};

}  // namespace orvemo::lote
