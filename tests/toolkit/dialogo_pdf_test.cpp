#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>

#include "toolkit/impresora_qt.h"

namespace orvemo {
namespace {

namespace fs = std::filesystem;

/// Does something to the file dialog as soon as it is there.
void cuandoPregunte(const std::function<void(QFileDialog&)>& responde) {
    QTimer::singleShot(0, [responde] {
        auto* const dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr);
        responde(*dialogo);
    });
}

class DialogoPdfTest : public ::testing::Test {
  protected:
    [[nodiscard]] fs::path fichero(std::string_view nombre) const {
        return fs::path{carpeta.path().toStdString()} / nombre;
    }

    QTemporaryDir carpeta;
};

TEST_F(DialogoPdfTest, OffersTheDocumentsNameAsAFile) {
    struct {
        std::string documento, nombre;
    } const casos[] = {
        {"Jubilación", "Jubilación.pdf"},
        {"TC2-TC2/1 \"ABREVIADO\"", "TC2-TC2-1 -ABREVIADO-.pdf"},
        {" ", "PENSIONES_ORVEMO.pdf"},
    };
    for (const auto& caso : casos) {
        QString ofrecido;
        cuandoPregunte([&](QFileDialog& dialogo) {
            ofrecido = dialogo.selectedFiles().constFirst().section('/', -1);
            EXPECT_EQ(dialogo.windowTitle().toStdString(), "Guardar el informe en PDF");
            dialogo.reject();
        });
        EXPECT_EQ(pideFicheroPdf(nullptr, caso.documento), std::nullopt) << "cancelled";
        EXPECT_EQ(ofrecido.toStdString(), caso.nombre);
    }
}

TEST_F(DialogoPdfTest, ANameWithoutSuffixGetsIt) {
    struct {
        std::string escrito, elegido;
    } const casos[] = {
        {"informe", "informe.pdf"},
        {"informe.pdf", "informe.pdf"},
        {"ñandú.txt", "ñandú.txt"},
    };
    for (const auto& caso : casos) {
        cuandoPregunte([&](QFileDialog& dialogo) {
            dialogo.setDirectory(carpeta.path());
            dialogo.selectFile(QString::fromStdString(caso.escrito));
            QMetaObject::invokeMethod(&dialogo, "accept");
        });
        EXPECT_EQ(pideFicheroPdf(nullptr, "Jubilación"), fichero(caso.elegido));
    }
}

}  // namespace
}  // namespace orvemo
