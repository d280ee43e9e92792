#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "foundations/frame/entorno.h"
#include "toolkit/destino_papel.h"

namespace orvemo {

/// A PDF file. It is written at EndDoc in one go: if that fails, a file of that name stays as it was.
class DestinoPdf final : public DestinoPapel {
  public:
    /// A sheet of A4 unless told otherwise.
    DestinoPdf(const Almacen& almacen, std::filesystem::path ruta, const std::string& titulo,
               const QPageLayout& papel = {});

  private:
    void entrega() override;

    std::filesystem::path ruta_;
    QString titulo_;
};

/// Prints to a given file without asking anybody.
class ImpresoraPdf final : public Impresora {
  public:
    explicit ImpresoraPdf(const Almacen& almacen, std::filesystem::path ruta = {})
        : almacen_{almacen}, ruta_{std::move(ruta)} {}

    /// The file of the next document.
    void ponRuta(std::filesystem::path ruta) { ruta_ = std::move(ruta); }

    [[nodiscard]] std::unique_ptr<DestinoImpresion> elige(const std::string& documento) override;

  private:
    const Almacen& almacen_;
    std::filesystem::path ruta_;
};

}  // namespace orvemo
