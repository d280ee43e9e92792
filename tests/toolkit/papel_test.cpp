#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QBuffer>
#include <QPrinter>
#include <QProcess>
#include <filesystem>

#include "apoyo/almacen_memoria.h"
#include "apoyo/disco.h"
#include "printing/rutinas_impresion.h"
#include "toolkit/impresora_pdf.h"
#include "toolkit/tipos_letra.h"

namespace orvemo {
namespace {

namespace fs = std::filesystem;
using pruebas::AlmacenMemoria;
using pruebas::DiscoLleno;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr double kPuntosPorCentimetro = 72 / 2.54;

/// What a program of the machine says.
std::string salida(const QString& programa, const QStringList& argumentos) {
    QProcess proceso;
    proceso.start(programa, argumentos);
    EXPECT_TRUE(proceso.waitForFinished()) << programa.toStdString();
    EXPECT_EQ(proceso.exitCode(), 0) << proceso.readAllStandardError().toStdString();
    return proceso.readAllStandardOutput().toStdString();
}

std::string logo() {
    QImage imagen{90, 30, QImage::Format_RGB32};
    imagen.fill(Qt::darkBlue);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    imagen.save(&bytes, "BMP");
    return bytes.data().toStdString();
}

class PapelTest : public ::testing::Test {
  protected:
    PapelTest() { almacen["logo.bmp"] = logo(); }

    void imprimeInforme(DestinoImpresion& destino) {
        RutinasImpresion rutinas{imagenDe(almacen, "LOGO.BMP")};
        rutinas.empieza(destino);
        rutinas.ImprimeCabecera(1, "JUBILACIÓN");
        rutinas.PonFuente("Arial", 12, "");
        rutinas.PonPosicion(1.0F, 6.0F);
        rutinas.ImprimeTexto("Nombre:$NMaría Ñúñez Güell$n", 1.0F, 0.5F);
        rutinas.ImprimeConclusion(
            "$SNo$s tiene: 7.425,00€ (5$$)\r\n$POtra hoja: º ª «ñandú» ¿ÁÉÍÓÚÜÑ? – …\r\n");
        rutinas.PonFuente("Courier New", 10, "");
        rutinas.ImprimeTexto("Total.......12,5%", 1.0F, 0.5F);
        destino.EndDoc();
    }

    [[nodiscard]] static std::string texto(const fs::path& ruta) {
        return salida("pdftotext", {"-raw", "-enc", "UTF-8", QString::fromStdString(ruta.string()), "-"});
    }

    /// Where each word lies, in points, as XML.
    [[nodiscard]] static std::string sitios(const fs::path& ruta) {
        const std::string todo = salida("pdftotext", {"-bbox", QString::fromStdString(ruta.string()), "-"});
        return todo.substr(todo.find("<page"));
    }

    pruebas::CarpetaTemporal carpeta;
    AlmacenMemoria almacen;
};

constexpr std::string_view kTextoInforme =
    "JUBILACIÓN\n"
    "Nombre:María Ñúñez Güell\n"
    "No tiene: 7.425,00€ (5$)\n"
    "\f"
    "Otra hoja: º ª «ñandú» ¿ÁÉÍÓÚÜÑ? – …\n"
    "Total.......12,5%\n"
    "\f";

TEST_F(PapelTest, APdfGivesBackItsTextPagesFontsAndSheet) {
    DestinoPdf pdf{almacen, carpeta / "informe.pdf", "Jubilación"};
    imprimeInforme(pdf);
    EXPECT_EQ(texto(carpeta / "informe.pdf"), kTextoInforme);

    const auto ruta = QString::fromStdString((carpeta / "informe.pdf").string());
    const std::string datos = salida("pdfinfo", {ruta});
    EXPECT_THAT(datos, HasSubstr("Title:           Jubilación\n"));
    EXPECT_THAT(datos, HasSubstr("Creator:         PENSIONES_ORVEMO\n"));
    EXPECT_THAT(datos, HasSubstr("Pages:           2\n"));
    EXPECT_THAT(datos, HasSubstr("(A4)"));
    const std::string fuentes = salida("pdffonts", {ruta});
    EXPECT_THAT(fuentes, HasSubstr("LiberationSans-Bold"));
    EXPECT_THAT(fuentes, HasSubstr("LiberationMono"));
    EXPECT_THAT(fuentes, Not(HasSubstr("Identity-H       no"))) << "every font is embedded";
}

TEST_F(PapelTest, APrinterDrawsTheSame) {
    struct Prueba final : DestinoPapel {
        Prueba(const Almacen& imagenes, QPrinter& cual)
            : DestinoPapel{imagenes, cual.pageLayout()}, impresora{cual} {}
        void entrega() override { pintaEn(impresora); }
        QPrinter& impresora;
    };
    QPrinter impresora{QPrinter::HighResolution};
    impresora.setOutputFormat(QPrinter::PdfFormat);
    impresora.setPageSize(QPageSize{QPageSize::A4});
    impresora.setOutputFileName(QString::fromStdString((carpeta / "impreso.pdf").string()));
    Prueba destino{almacen, impresora};
    EXPECT_EQ(destino.Width(), 11906);
    imprimeInforme(destino);
    EXPECT_EQ(texto(carpeta / "impreso.pdf"), kTextoInforme);
    DestinoPdf pdf{almacen, carpeta / "informe.pdf", "Jubilación"};
    imprimeInforme(pdf);
    EXPECT_EQ(sitios(carpeta / "impreso.pdf"), sitios(carpeta / "informe.pdf"));

    impresora.setOutputFileName(QStringLiteral("/no/hay/tal/sitio.pdf"));
    EXPECT_THROW(imprimeInforme(destino), FalloImpresion);
}

TEST_F(PapelTest, SheetsAreMeasuredInWholeTwips) {
    struct {
        const char* titulo;
        QPageLayout papel;
        double ancho, alto;
    } const casos[] = {
        {"A4 when nothing is told", {}, 11906, 16838},
        {"A4", {QPageSize{QPageSize::A4}, QPageLayout::Portrait, {}}, 11906, 16838},
        {"A4 lying", {QPageSize{QPageSize::A4}, QPageLayout::Landscape, {}}, 16838, 11906},
        {"margins don't count",
         {QPageSize{QPageSize::A4}, QPageLayout::Portrait, {20, 20, 20, 20}},
         11906,
         16838},
    };
    for (const auto& caso : casos) {
        const DestinoPdf pdf{almacen, carpeta / "x.pdf", "", caso.papel};
        EXPECT_EQ(pdf.Width(), caso.ancho) << caso.titulo;
        EXPECT_EQ(pdf.Height(), caso.alto) << caso.titulo;
    }
}

TEST_F(PapelTest, TextsAreMeasuredInTheFontsTheyWillHave) {
    ASSERT_TRUE(fuentesInstaladas());
    DestinoPdf pdf{almacen, carpeta / "x.pdf", ""};
    pdf.Font({.nombre = "Courier New", .tamano = 10});
    // Letters of 1229 units in 2048.
    EXPECT_NEAR(pdf.TextWidth("1234567890"), 10 * 10 * 1229.0 / 2048 / kPuntosPorCentimetro, 0.005);
    const double cien = 12 * 100 * 1139.0 / 2048 / kPuntosPorCentimetro;  // digits of 1139 units
    pdf.Font({.nombre = "Arial", .tamano = 12});
    EXPECT_NEAR(pdf.TextWidth(std::string(100, '0')), cien, 0.02);
    pdf.Font({.nombre = "SmallFonts", .tamano = 6});
    EXPECT_NEAR(pdf.TextWidth(std::string(100, '0')), cien / 2, 0.02);
    pdf.Font({.nombre = "Una cualquiera", .tamano = 12});
    EXPECT_NEAR(pdf.TextWidth(std::string(100, '0')), cien, 0.02);
    EXPECT_EQ(pdf.TextWidth(""), 0);
}

TEST_F(PapelTest, PrintingMovesAlongOrDown) {
    DestinoPdf pdf{almacen, carpeta / "x.pdf", ""};
    pdf.Font({.nombre = "Arial", .tamano = 12});
    pdf.CurrentX(1.5F);
    pdf.CurrentY(2.0F);
    pdf.Print("0000000000", false);
    EXPECT_NEAR(pdf.CurrentX(), 1.5 + 120 * 1139.0 / 2048 / kPuntosPorCentimetro, 0.005);
    EXPECT_EQ(pdf.CurrentY(), 2.0F);
    pdf.Print("", true);
    EXPECT_EQ(pdf.CurrentX(), 0.0F);
    EXPECT_NEAR(pdf.CurrentY(), 2.0 + 0.48, 0.02) << "a line of 12 points";
    pdf.NewPage();
    EXPECT_EQ(pdf.CurrentY(), 0.0F);
}

// --- Margins

TEST(HojaTest, WhatPassesThePrintableEdgeIsBroughtBack) {
    Hoja hoja;
    hoja.textos = {{.x = 1, .y = 5, .ancho = 10, .fuente = {}, .texto = {}},
                   {.x = 11, .y = 5, .ancho = 10, .fuente = {}, .texto = {}},
                   {.x = 1, .y = 6, .ancho = 19, .fuente = {}, .texto = {}},
                   {.x = 25, .y = 7, .ancho = 2, .fuente = {}, .texto = {}},
                   {.x = 3, .y = 8, .ancho = 9, .fuente = {}, .texto = {}},
                   {.x = 15, .y = 8, .ancho = 10, .fuente = {}, .texto = {}}};
    hoja.lineas = {{0, 3, 21, 3}, {0, 4, 20, 4}};
    hoja.cajas = {{0, 3, 22, 3.1}};
    encaja(hoja, 20);
    EXPECT_DOUBLE_EQ(hoja.textos[0].estrechez, 0.95) << "20 cm of text in 19";
    EXPECT_DOUBLE_EQ(hoja.textos[1].estrechez, 0.95) << "the whole line as one";
    EXPECT_DOUBLE_EQ(hoja.textos[1].x, 10.5);
    EXPECT_DOUBLE_EQ(hoja.textos[2].estrechez, 1) << "just fits";
    EXPECT_DOUBLE_EQ(hoja.textos[3].estrechez, 1) << "lies wholly outside and stays there";
    EXPECT_DOUBLE_EQ(hoja.textos[4].estrechez, 1) << "another cell of a form's row";
    EXPECT_DOUBLE_EQ(hoja.textos[5].x, 15) << "the long name, where its cell begins";
    EXPECT_DOUBLE_EQ(hoja.textos[5].estrechez, 0.5);
    EXPECT_DOUBLE_EQ(hoja.lineas[0].x2, 20);
    EXPECT_DOUBLE_EQ(hoja.lineas[1].x2, 20);
    EXPECT_DOUBLE_EQ(hoja.cajas[0].x2, 20);
}

TEST_F(PapelTest, AnOverlongLineEndsWithinThePaperWithAllItsLetters) {
    DestinoPdf pdf{almacen, carpeta / "larga.pdf", ""};
    RutinasImpresion rutinas;
    rutinas.empieza(pdf);
    rutinas.ImprimeCabecera(1);
    rutinas.PonFuente("Arial", 12, "");
    const std::string larga(300, '0');
    const std::string cabe{rutinas.TextoQueCabe(larga, rutinas.AnchoImpresion() - 1)};
    rutinas.ImprimeTexto(larga, 1.0F, 0.6F);
    pdf.EndDoc();
    EXPECT_EQ(texto(carpeta / "larga.pdf"), cabe + "\n\f");

    const QString caja = QString::fromStdString(sitios(carpeta / "larga.pdf"));
    const auto borde = [&](const QString& nombre) {
        return caja.section(nombre + "=\"", 1).section('"', 0, 0).toDouble() / kPuntosPorCentimetro;
    };
    EXPECT_NEAR(borde("xMin"), 1.5, 0.01) << "half a centimetre of margin and X 1";
    EXPECT_NEAR(borde("xMax"), 20.5, 0.05) << "the same margin on the right";
    EXPECT_NEAR(borde("yMin"), 5.0, 0.1);
}

// --- What fails

TEST_F(PapelTest, ADocumentThrownAwayLeavesNoFile) {
    {
        DestinoPdf olvidado{almacen, carpeta / "olvidado.pdf", ""};
        olvidado.Print("algo", true);
    }
    EXPECT_THAT(carpeta.ficheros(), ElementsAre());
}

TEST_F(PapelTest, AFileThatCantBeWrittenIsNamed) {
    fs::create_directory(carpeta / "carpeta.pdf");
    for (const fs::path& ruta : {carpeta / "no/existe.pdf", carpeta / "carpeta.pdf", fs::path{}}) {
        DestinoPdf pdf{almacen, ruta, ""};
        pdf.Print("algo", true);
        try {
            pdf.EndDoc();
            ADD_FAILURE() << ruta;
        } catch (const FalloImpresion& fallo) {
            EXPECT_EQ(fallo.what(), "no se puede escribir el fichero «" + ruta.string() + "»");
        }
    }
    EXPECT_THAT(carpeta.ficheros(), ElementsAre("carpeta.pdf"));
}

TEST_F(PapelTest, AFullDiskLeavesTheOldFile) {
    carpeta.pon("informe.pdf", "el de antes");
    for (const rlim_t sitio : {0, 1, 2, 100, 4096, 8191}) {
        DestinoPdf pdf{almacen, carpeta / "informe.pdf", ""};
        const DiscoLleno lleno{sitio};
        EXPECT_THROW(imprimeInforme(pdf), FalloImpresion) << sitio;
    }
    EXPECT_EQ(carpeta.contenido("informe.pdf"), "el de antes");
    EXPECT_THAT(carpeta.ficheros(), ElementsAre("informe.pdf")) << "nothing half written beside it";
    ImpresoraPdf impresora{almacen, carpeta / "informe.pdf"};
    imprimeInforme(*impresora.elige("Jubilación"));
    EXPECT_EQ(texto(carpeta / "informe.pdf"), kTextoInforme);
}

TEST_F(PapelTest, APictureThatIsNoneIsNamed) {
    const Imagen imagen = imagenDe(almacen, "logo.bmp");
    EXPECT_EQ(imagen.ancho, 90);
    EXPECT_EQ(imagen.alto, 30);
    almacen["roto.bmp"] = "BM y nada más";
    EXPECT_THROW(std::ignore = imagenDe(almacen, "roto.bmp"), FalloImpresion);
    DestinoPdf pdf{almacen, carpeta / "x.pdf", ""};
    EXPECT_THROW(pdf.PaintPicture({.nombre = "roto.bmp"}, 0, 0, 1, 1), FalloImpresion);
    EXPECT_THROW(pdf.PaintPicture({.nombre = "roto.bmp"}, 0, 0, 1, 1), FalloImpresion)
        << "not even the second time";
    EXPECT_THROW(pdf.PaintPicture({.nombre = "ausente.bmp"}, 0, 0, 1, 1), FicheroInaccesible);
}

}  // namespace
}  // namespace orvemo
