#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "foundations/frame/entorno.h"

class QWidget;

namespace orvemo {

/// Lets the user choose a printer in the standard dialog, or only a PDF file where no printer is installed.
/// The dialog belongs to the active window. Remembers nothing from one document to the next.
class ImpresoraQt final : public Impresora {
  public:
    /// `almacen` holds the pictures of the reports.
    explicit ImpresoraQt(const Almacen& almacen) : almacen_{almacen} {}

    [[nodiscard]] std::unique_ptr<DestinoImpresion> elige(const std::string& documento) override;

  private:
    [[nodiscard]] std::unique_ptr<DestinoImpresion> eligeImpresora(QWidget* ventana,
                                                                   const std::string& documento) const;
    [[nodiscard]] std::unique_ptr<DestinoImpresion> eligePdf(QWidget* ventana,
                                                             const std::string& documento) const;

    const Almacen& almacen_;
};

/// Asks for the file of a PDF, offering the document's name; nothing when cancelled.
[[nodiscard]] std::optional<std::filesystem::path> pideFicheroPdf(QWidget* ventana,
                                                                  const std::string& documento);

}  // namespace orvemo
