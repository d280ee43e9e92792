// What a write that stops at byte 0, 1, 2… leaves behind.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "apoyo_casos.h"

namespace orvemo {
namespace {

using pruebas::FicheroDePrueba;
using pruebas::kLongitud;
using pruebas::registro;
using testing::HasSubstr;

constexpr const char* kComoEstaba =
    "el fichero \"desemp.nom\" no se puede usar (el disco está lleno o no admite más datos; lo que había "
    "queda "
    "como estaba)";
constexpr const char* kPuedeEstarDanado =
    "el fichero \"desemp.nom\" no se puede usar (el disco ha fallado a media escritura y lo que había puede "
    "estar dañado)";

/// The message of the failure, "" when there is none.
std::string fallo(const std::function<void()>& operacion) {
    try {
        operacion();
        return "";
    } catch (const FicheroInaccesible& inaccesible) {
        return inaccesible.what();
    }
}

struct Escritura {
    const char* titulo;
    std::string fichero;
    std::size_t bytes;  ///< that the operation writes
    void (*opera)(ArchivoSupuestos&);
};

const std::string kTres = registro("uno") + registro("dos") + registro("tres");
const std::string kNuevo = registro("dos", 'y');

const Escritura kEscrituras[] = {
    {"first case of an empty file", "", kLongitud, [](ArchivoSupuestos& a) { a.agrega(kNuevo); }},
    {"at the end", kTres, kLongitud, [](ArchivoSupuestos& a) { a.agrega(kNuevo); }},
    {"at the end, past a partial record", kTres + std::string(200, 'z'), kLongitud,
     [](ArchivoSupuestos& a) { a.agrega(kNuevo); }},
    {"at the end, over stray bytes", kTres + std::string(100, 'z'), kLongitud,
     [](ArchivoSupuestos& a) { a.agrega(kNuevo); }},
    {"in a free slot", registro("uno") + registro("libre", 'z', '*') + kTres, kLongitud,
     [](ArchivoSupuestos& a) { a.agrega(kNuevo); }},
    {"over a record", kTres, kLongitud, [](ArchivoSupuestos& a) { a.sobrescribe(2, kNuevo); }},
    {"over a partial record", kTres + std::string(200, 'z'), kLongitud,
     [](ArchivoSupuestos& a) { a.sobrescribe(4, kNuevo); }},
    {"over the record of a name", kTres, kLongitud,
     [](ArchivoSupuestos& a) { a.sobrescribePorNombre(kNuevo); }},
    {"erasing", kTres, kAnchoCabecera, [](ArchivoSupuestos& a) { a.borra(2); }},
};

TEST(EscriturasFallidas, AWriteThatStopsOnceLeavesTheFileAsItWas) {
    for (const Escritura& escritura : kEscrituras) {
        for (std::size_t byte = 0; byte < escritura.bytes; ++byte) {
            FicheroDePrueba prueba;
            prueba.bytes() = escritura.fichero;
            prueba.almacen.averia = {.bytes = byte};
            ASSERT_EQ(fallo([&] { escritura.opera(prueba.archivo); }), kComoEstaba)
                << escritura.titulo << ", byte " << byte;
            ASSERT_EQ(prueba.bytes(), escritura.fichero) << escritura.titulo << ", byte " << byte;
            ASSERT_EQ(fallo([&] { escritura.opera(prueba.archivo); }), "") << "and all works again";
        }
    }
}

TEST(EscriturasFallidas, ADiskThatStaysBrokenIsToldAndTheOtherRecordsStay) {
    for (std::size_t byte = 0; byte < kLongitud; ++byte) {
        FicheroDePrueba prueba;
        prueba.bytes() = kTres;
        prueba.almacen.averia = {.bytes = byte, .duradera = true};
        const std::string mensaje = fallo([&] { prueba.archivo.sobrescribe(2, kNuevo); });
        // The first 161 bytes of the new record are those of the old: till there nothing changed.
        ASSERT_EQ(mensaje, byte <= kAnchoCabecera ? kComoEstaba : kPuedeEstarDanado) << "byte " << byte;
        ASSERT_EQ(prueba.bytes().substr(0, kLongitud), registro("uno"));
        ASSERT_EQ(prueba.bytes().substr(2 * kLongitud), registro("tres"));
    }
    FicheroDePrueba prueba;
    prueba.bytes() = kTres;
    prueba.almacen.averia = {.bytes = 1, .duradera = true};
    EXPECT_EQ(fallo([&] { prueba.archivo.agrega(kNuevo); }), kPuedeEstarDanado)
        << "the file can't be cut back";
    EXPECT_EQ(prueba.archivo.cuenta(), 3);
}

TEST(EscriturasFallidas, AFullDiskTakesNoNewCaseButLetsOldOnesChange) {
    for (std::uint64_t sitio = 0; sitio < kLongitud; ++sitio) {
        FicheroDePrueba prueba;
        prueba.bytes() = kTres;
        prueba.almacen.sitio = sitio;
        ASSERT_EQ(fallo([&] { prueba.archivo.agrega(kNuevo); }), kComoEstaba);
        ASSERT_EQ(prueba.bytes(), kTres);
        ASSERT_EQ(fallo([&] { prueba.archivo.sobrescribe(2, kNuevo); }), "");
        ASSERT_EQ(fallo([&] { prueba.archivo.borra(1); }), "");
        ASSERT_EQ(fallo([&] { prueba.archivo.agrega(kNuevo); }), "") << "in the slot just freed";
    }
}

TEST(EscriturasFallidas, AReadOnlyDirectoryListsAndSaysWhyItDoesNotSave) {
    FicheroDePrueba prueba;
    prueba.almacen.soloLectura = true;
    EXPECT_TRUE(prueba.archivo.lista().empty());
    EXPECT_FALSE(prueba.almacen.existe("desemp.nom"));
    EXPECT_THAT(fallo([&] { prueba.archivo.agrega(kNuevo); }), HasSubstr("no se puede escribir"));
    EXPECT_THAT(fallo([&] { prueba.archivo.borra(1); }), HasSubstr("no se puede escribir"));
}

}  // namespace
}  // namespace orvemo
