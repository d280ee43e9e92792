#include "toolkit/impresora_qt.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <utility>

#include "foundations/values/fallos.h"
#include "toolkit/destino_papel.h"
#include "toolkit/impresora_pdf.h"

namespace orvemo {

namespace {

/// A document for a real printer. The spooler gets it at EndDoc.
class DestinoImpresora final : public DestinoPapel {
  public:
    DestinoImpresora(const Almacen& almacen, std::unique_ptr<QPrinter> impresora)
        : DestinoPapel{almacen, impresora->pageLayout()}, impresora_{std::move(impresora)} {}

  private:
    void entrega() override {
        pintaEn(*impresora_);
        if (impresora_->printerState() == QPrinter::Error) {
            throw FalloImpresion{"la impresora no ha terminado el documento"};
        }
    }

    std::unique_ptr<QPrinter> impresora_;
};

[[nodiscard]] std::filesystem::path rutaDe(const QString& fichero) {
    return QFile::encodeName(fichero).toStdString();
}

/// The document's name without what file names can't have on some system.
[[nodiscard]] QString nombreDeFichero(const std::string& documento) {
    static const QRegularExpression prohibidos{QStringLiteral(R"([/\\:*?"<>|\x00-\x1f])")};
    const QString nombre =
        QString::fromStdString(documento).replace(prohibidos, QStringLiteral("-")).trimmed();
    return (nombre.isEmpty() ? QString::fromLatin1(kCreadorDocumentos) : nombre) + QStringLiteral(".pdf");
}

}  // namespace

std::unique_ptr<DestinoImpresion> ImpresoraQt::elige(const std::string& documento) {
    QWidget* const ventana = QApplication::activeWindow();
    const bool hayImpresora = !QPrinterInfo::availablePrinterNames().isEmpty();
    auto destino = hayImpresora ? eligeImpresora(ventana, documento) : eligePdf(ventana, documento);
    if (ventana != nullptr) ventana->activateWindow();
    return destino;
}

/// The dialog offers the printers and, last, a PDF file, which takes the road of every PDF.
std::unique_ptr<DestinoImpresion> ImpresoraQt::eligeImpresora(QWidget* ventana,
                                                              const std::string& documento) const {
    auto impresora = std::make_unique<QPrinter>(QPrinter::HighResolution);
    impresora->setDocName(QString::fromStdString(documento));
    impresora->setCreator(QString::fromLatin1(kCreadorDocumentos));
    QPrintDialog dialogo{impresora.get(), ventana};
    dialogo.setWindowTitle(QStringLiteral("Imprimir"));
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (dialogo.exec() != QDialog::Accepted) return nullptr;
    if (impresora->outputFormat() == QPrinter::PdfFormat) {
        return std::make_unique<DestinoPdf>(almacen_, rutaDe(impresora->outputFileName()), documento,
                                            impresora->pageLayout());
    }
    return std::make_unique<DestinoImpresora>(almacen_, std::move(impresora));
}

std::unique_ptr<DestinoImpresion> ImpresoraQt::eligePdf(QWidget* ventana,
                                                        const std::string& documento) const {
    const auto ruta = pideFicheroPdf(ventana, documento);
    if (!ruta) return nullptr;
    return std::make_unique<DestinoPdf>(almacen_, *ruta, documento);
}

std::optional<std::filesystem::path> pideFicheroPdf(QWidget* ventana, const std::string& documento) {
    QFileDialog dialogo{ventana, QStringLiteral("Guardar el informe en PDF"),
                        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                        QStringLiteral("Documentos PDF (*.pdf)")};
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(QStringLiteral("pdf"));
    dialogo.setLabelText(QFileDialog::LookIn, QStringLiteral("Carpeta:"));
    dialogo.setLabelText(QFileDialog::FileName, QStringLiteral("Nombre:"));
    dialogo.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo:"));
    dialogo.setLabelText(QFileDialog::Accept, QStringLiteral("Guardar"));
    dialogo.setLabelText(QFileDialog::Reject, QStringLiteral("Cancelar"));
    dialogo.selectFile(nombreDeFichero(documento));
    if (dialogo.exec() != QDialog::Accepted) return std::nullopt;
    return rutaDe(dialogo.selectedFiles().constFirst());
}

}  // namespace orvemo
