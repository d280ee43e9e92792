#include "lote/lote.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QImage>
#include <QJsonDocument>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "apoyo/disco.h"
#include "benefits/desempleo/desempleo_registro.h"
#include "cases/archivo_supuestos.h"
#include "catalogue/catalogo.h"
#include "foundations/values/almacen.h"

namespace orvemo::lote {
namespace {

namespace fs = std::filesystem;

/// A directory with the case file "paro.nom": a case with a right, a free slot, a case that overflows.
class LoteTest : public testing::Test {
  protected:
    LoteTest() {
        DirectorioAplicacion directorio{lugar};
        ArchivoSupuestos archivo{directorio, "paro.nom", desempleo::kDiseno.longitud()};
        desempleo::RegistroDesempleo caso;
        caso.NombreSupuesto.asigna("Dos años");
        caso.Nombre.asigna("Elena \"Nena\" Prado");
        caso.Edad = 40;
        caso.Fecha_ = caso.fIni = FechaDMA(6, 6, 2005);
        caso.Suma = 7200;
        caso.Dias = 540;
        archivo.agrega(desempleo::kDiseno.escribe(caso));
        archivo.agrega(desempleo::kDiseno.escribe(caso));
        caso.NombreSupuesto.asigna("Desborda");
        caso.Suma = 1e12;
        archivo.agrega(desempleo::kDiseno.escribe(caso));
        archivo.borra(2);
    }

    int ejecutaLote() { return ejecuta(opciones, CalculadorasDelPrograma(), lugar, salida, errores); }

    pruebas::CarpetaTemporal lugar;
    Opciones opciones{.calculadora = "desempleo", .fichero = lugar / "paro.nom"};
    std::ostringstream salida, errores;
};

constexpr const char* kConclusionJson =
    "El interesado desea solicitar una prestación de desempleo.\\r\\n"
    "Tiene derecho a 180 días de prestación.\\r\\n"
    "La base reguladora diaria es de 40,00 €.\\r\\n"
    "El importe de la prestación es de 28,00 € diarios.\\r\\n";

constexpr const char* kCamposJson =
    R"(,"campos":{"Estado":"","NombreSupuesto":"Dos años","Nombre":"Elena \"Nena\" Prado","Edad":40,)"
    R"("Fecha":"2005-06-06","fIni":"2005-06-06","Suma":7200,"Dias":540,"Hijos":0,"Horas":0,"Parcial":0,)"
    R"("reservado":null})";

TEST_F(LoteTest, GivesEachCaseInUseAsAnObjectALine) {
    opciones.json = true;
    EXPECT_EQ(ejecutaLote(), kAlgunoFallo);
    const std::string texto = salida.str();
    const std::string primera = texto.substr(0, texto.find('\n'));
    EXPECT_EQ(primera,
              std::string{"{\"registro\":1,\"supuesto\":\"Dos años\",\"nombre\":\"Elena \\\"Nena\\\" Prado\","
                          "\"derecho\":true,\"conclusion\":\""} +
                  kConclusionJson + "\"" + kCamposJson + "}");
    EXPECT_EQ(texto.find("\"registro\":2"), std::string::npos) << "a free slot is no case";
    EXPECT_NE(texto.find("{\"registro\":3,\"supuesto\":\"Desborda\",\"error\":\""), std::string::npos);
    salida.setstate(std::ios::badbit);
    EXPECT_EQ(ejecutaLote(), kInservible) << "a reader that went away, a full disk";
    EXPECT_EQ(errores.str(), "No se puede escribir la salida.\n");
}

TEST_F(LoteTest, OneRecordAloneInText) {
    opciones.registro = 1;
    EXPECT_EQ(ejecutaLote(), kTodoCalculado);
    EXPECT_EQ(salida.str(),
              "=== 1. Dos años\n"
              "Nombre: Elena \"Nena\" Prado\n"
              "El interesado desea solicitar una prestación de desempleo.\n"
              "Tiene derecho a 180 días de prestación.\n"
              "La base reguladora diaria es de 40,00 €.\n"
              "El importe de la prestación es de 28,00 € diarios.\n"
              "[CON DERECHO]\n\n");
}

TEST_F(LoteTest, WhatCannotBeUsedIsToldAndNothingIsMade) {
    const struct {
        const char* historia;
        void (*estropea)(Opciones&, const fs::path&);
    } casos[] = {
        {"no such file", [](Opciones& o, const fs::path& d) { o.fichero = d / "nada.nom"; }},
        {"a directory", [](Opciones& o, const fs::path& d) { o.fichero = d; }},
        {"a pipe",
         [](Opciones& o, const fs::path& d) {
             o.fichero = d / "fifo.nom";
             ASSERT_EQ(mkfifo(o.fichero.c_str(), 0600), 0);
         }},
        {"no such calculator", [](Opciones& o, const fs::path&) { o.calculadora = "loteria"; }},
        {"a free record", [](Opciones& o, const fs::path&) { o.registro = 2; }},
        {"beyond the end", [](Opciones& o, const fs::path&) { o.registro = 9; }},
        {"no such directory for the reports", [](Opciones& o, const fs::path& d) { o.pdf = d / "nada"; }},
        {"nor a name for one", [](Opciones& o, const fs::path&) { o.pdf = std::string(300, 'a'); }},
        {"no such directory of data", [](Opciones& o, const fs::path& d) { o.datos = d / "nada"; }},
        {"a data file is missing", [](Opciones& o, const fs::path&) { o.calculadora = "jubilacion"; }},
        {"too many records",
         [](Opciones& o, const fs::path&) { fs::resize_file(o.fichero, 297ULL * 32768); }},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.historia);
        Opciones estropeadas = opciones;
        caso.estropea(estropeadas, lugar);
        errores.str({});
        EXPECT_EQ(ejecuta(estropeadas, CalculadorasDelPrograma(), lugar, salida, errores), kInservible);
        EXPECT_FALSE(errores.str().empty());
    }
    EXPECT_TRUE(salida.str().empty());
    EXPECT_FALSE(fs::exists(lugar / "nada.nom"));
    EXPECT_FALSE(fs::exists(lugar / "desemp.nom")) << "the calculator's own file is not touched";
}

TEST_F(LoteTest, TheFileMayBearAnyNameAnywhere) {
    opciones.registro = 1;
    fs::current_path(lugar);
    for (const fs::path nombre : {"a\\b.nom", "mu\xF1oz.nom", "PARO.NOM", "./sub/../paro.nom"}) {
        fs::create_directories(lugar / "sub");
        if (!fs::exists(nombre)) fs::copy_file("paro.nom", nombre);
        opciones.fichero = nombre;
        EXPECT_EQ(ejecutaLote(), kTodoCalculado) << nombre;
    }
    fs::current_path(fs::temp_directory_path());
}

// 255 in every byte, 0 in every byte, and bytes without sense; for net to gross too, which reads withholding.
TEST_F(LoteTest, WhateverTheBytesEachCaseGivesALineOfJson) {
    std::minstd_rand azar{2005};
    opciones.datos = ORVEMO_DATOS;
    opciones.json = true;
    for (const EntradaCatalogo& entrada : CalculadorasDelPrograma()) {
        SCOPED_TRACE(entrada.clave);
        const std::size_t longitud = entrada.registro.abre == nullptr ? 482 : entrada.registro.longitud;
        std::string bytes(longitud * 12, '\xFF');
        for (std::size_t i = longitud; i < bytes.size(); ++i)
            bytes[i] = i < 2 * longitud ? '\0' : static_cast<char>(azar() >> 8U);
        for (std::size_t r = 0; r < bytes.size(); r += longitud)
            if (bytes[r] == kRegistroLibre) bytes[r] = ' ';
        lugar.pon("paro.nom", bytes);
        opciones.calculadora = entrada.clave;
        salida.str({});
        const int estado = ejecutaLote();
        EXPECT_TRUE(estado == kTodoCalculado || estado == kAlgunoFallo) << estado << errores.str();
        std::istringstream lineas{salida.str()};
        int cuantas = 0;
        for (std::string linea; std::getline(lineas, linea); ++cuantas)
            EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(linea)).isObject()) << linea;
        EXPECT_EQ(cuantas, 12);
    }
}

// The file was cut while the batch read it: 27,767 blank cases and status 0.
TEST_F(LoteTest, ACaseThatIsNotThereWholeIsAnErrorAndTheOthersGoOn) {
    fs::resize_file(lugar / "paro.nom", 2 * 297 + 160);
    opciones.json = true;
    EXPECT_EQ(ejecutaLote(), kAlgunoFallo);
    EXPECT_NE(salida.str().find("{\"registro\":1,\"supuesto\":\"Dos años\",\"nombre\""), std::string::npos);
    EXPECT_NE(salida.str().find("{\"registro\":3,\"supuesto\":\"\",\"error\":\"el fichero"),
              std::string::npos);
}

TEST_F(LoteTest, ANameCannotForgeAResult) {
    DirectorioAplicacion directorio{lugar};
    ArchivoSupuestos archivo{directorio, "paro.nom", desempleo::kDiseno.longitud()};
    std::string bytes = archivo.lee(1);
    bytes.replace(1, 29, "A\n[CON DERECHO]\n=== 9. \x1B[31m\n");
    archivo.sobrescribe(1, bytes);
    opciones.registro = 1;
    EXPECT_EQ(ejecutaLote(), kTodoCalculado);
    EXPECT_TRUE(salida.str().starts_with("=== 1. A\\n[CON DERECHO]\\n=== 9. \\u001b[31m\\n\n"))
        << salida.str();
}

// One screen serves all the cases of a run: what one leaves must not reach the next.
TEST_F(LoteTest, EachCaseGivesWhatItGivesAloneWhateverCameBefore) {
    std::minstd_rand azar{2005};
    opciones.hoy = FechaDMA(1, 7, 2005);
    opciones.datos = ORVEMO_DATOS;
    opciones.json = true;
    for (const EntradaCatalogo& entrada : CalculadorasDelPrograma()) {
        if (entrada.registro.abre == nullptr || entrada.ejemplos.empty()) continue;
        DirectorioAplicacion datos{ORVEMO_DATOS};
        ArchivoSupuestos ejemplos{datos, std::string{entrada.ejemplos}, entrada.registro.longitud};
        std::vector<std::string> casos;
        for (int i = 0; i < 24; ++i) {
            std::string caso = ejemplos.lee(1 + i % ejemplos.cuenta());
            // Most of them altered in a byte or two: other options, other dates, cases that fail.
            for (int veces = i % 3; veces > 0; --veces)
                caso[kAnchoCabecera + azar() % (caso.size() - kAnchoCabecera)] =
                    static_cast<char>(azar() % 4);
            casos.push_back(std::move(caso));
        }
        std::ranges::shuffle(casos, azar);
        fs::remove(lugar / "todos.nom");
        DirectorioAplicacion directorio{lugar};
        ArchivoSupuestos{directorio, "todos.nom", entrada.registro.longitud}.agregaTodos(casos);
        opciones.calculadora = entrada.clave;
        opciones.fichero = lugar / "todos.nom";
        opciones.registro.reset();
        salida.str({});
        ejecutaLote();
        const std::string juntos = salida.str();
        salida.str({});
        for (int r = 1; r <= 24; ++r) {
            opciones.registro = r;
            ejecutaLote();
        }
        EXPECT_EQ(juntos, salida.str()) << entrada.clave;
    }
}

TEST_F(LoteTest, PrintsEachReportToItsPdf) {
    opciones.registro = 1;
    opciones.pdf = lugar;
    EXPECT_EQ(ejecutaLote(), kAlgunoFallo) << "there is no picture to head the page";
    EXPECT_FALSE(fs::exists(lugar / "desempleo-1.pdf"));
    QImage logo{4, 2, QImage::Format_RGB32};
    logo.fill(Qt::blue);
    ASSERT_TRUE(logo.save(QString::fromStdString((lugar / "logo.bmp").string())));
    EXPECT_EQ(ejecutaLote(), kTodoCalculado) << salida.str();
    std::ifstream pdf{lugar / "desempleo-1.pdf", std::ios::binary};
    std::string cabecera(5, ' ');
    pdf.read(cabecera.data(), 5);
    EXPECT_EQ(cabecera, "%PDF-");
    opciones.pdf = lugar / "mu\xF1oz";
    fs::create_directory(*opciones.pdf);
    EXPECT_EQ(ejecutaLote(), kTodoCalculado) << "a name of other bytes than UTF-8's";
    EXPECT_GT(fs::file_size(*opciones.pdf / "desempleo-1.pdf"), 0U);
}

}  // namespace
}  // namespace orvemo::lote
