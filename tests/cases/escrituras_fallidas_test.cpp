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

/// "desemp.nom" before an operation, and what the operation makes of it on a sound disk.
struct Ensayo {
    explicit Ensayo(const Escritura& escritura) : antes{escritura.fichero} {
        FicheroDePrueba sano;
        sano.bytes() = antes;
        sano.almacen.averia = {.bytes = kHolgura};
        escritura.opera(sano.archivo);
        total = kHolgura - sano.almacen.averia->bytes;
        despues = sano.bytes();
        EXPECT_EQ(sano.almacen.ficheros.size(), 1U) << "a finished operation leaves no journal";
    }

    static constexpr std::uint64_t kHolgura = 1 << 20;
    std::string antes;
    std::string despues;
    std::uint64_t total = 0;  ///< bytes written, those of the journal too
};

TEST(EscriturasFallidas, AWriteThatStopsOnceLeavesTheFileAsItWas) {
    for (const Escritura& escritura : kEscrituras) {
        const Ensayo ensayo{escritura};
        std::size_t fallidas = 0;
        for (std::uint64_t byte = 0; byte < ensayo.total; ++byte) {
            FicheroDePrueba prueba;
            prueba.bytes() = ensayo.antes;
            prueba.almacen.averia = {.bytes = byte};
            const std::string mensaje = fallo([&] { escritura.opera(prueba.archivo); });
            if (!mensaje.empty()) ++fallidas;
            ASSERT_EQ(mensaje, mensaje.empty() ? "" : kComoEstaba) << escritura.titulo << ", byte " << byte;
            ASSERT_EQ(prueba.bytes(), mensaje.empty() ? ensayo.despues : ensayo.antes)
                << escritura.titulo << ", byte " << byte;
            ASSERT_EQ(prueba.almacen.ficheros.size(), 1U) << "no journal stays";
        }
        EXPECT_EQ(fallidas, escritura.bytes) << "without its journal the operation goes on";
    }
}

TEST(EscriturasFallidas, ADiskThatStaysBrokenIsToldAndTheNextOpeningPutsTheOldRecordBack) {
    for (const Escritura& escritura : kEscrituras) {
        const Ensayo ensayo{escritura};
        for (std::uint64_t byte = 0; byte < ensayo.total; ++byte) {
            FicheroDePrueba prueba;
            prueba.bytes() = ensayo.antes;
            prueba.almacen.averia = {.bytes = byte, .duradera = true};
            const std::string mensaje = fallo([&] { escritura.opera(prueba.archivo); });
            ASSERT_EQ(mensaje, prueba.bytes() == ensayo.antes ? kComoEstaba : kPuedeEstarDanado);
            prueba.almacen.averia.reset();
            (void)prueba.archivo.cuenta();
            ASSERT_EQ(prueba.bytes(), ensayo.antes) << escritura.titulo << ", byte " << byte;
            ASSERT_EQ(prueba.almacen.ficheros.size(), 1U);
        }
    }
}

// The program was killed while it wrote over a case, which was left half old and half new.
TEST(EscriturasFallidas, AProgramThatEndsAtAnyByteLeavesTheOldRecordOrTheNew) {
    for (const Escritura& escritura : kEscrituras) {
        const Ensayo ensayo{escritura};
        for (std::uint64_t byte = 0; byte <= ensayo.total; ++byte) {
            FicheroDePrueba prueba;
            prueba.bytes() = ensayo.antes;
            prueba.almacen.averia = {.bytes = byte, .mortal = true};
            ASSERT_THROW(escritura.opera(prueba.archivo), pruebas::Muerte) << escritura.titulo << byte;
            prueba.almacen.averia.reset();
            (void)prueba.archivo.cuenta();
            ASSERT_EQ(prueba.bytes(), ensayo.antes) << escritura.titulo << ", byte " << byte;
            ASSERT_EQ(prueba.almacen.ficheros.size(), 1U);
        }
    }
}

TEST(EscriturasFallidas, AJournalTouchesNoOtherFileInsteadOfItsOwn) {
    FicheroDePrueba prueba;
    prueba.bytes() = kTres;
    prueba.almacen.averia = {.bytes = kLongitud + 100, .mortal = true};
    ASSERT_THROW(prueba.archivo.sobrescribe(2, kNuevo), pruebas::Muerte);
    prueba.almacen.averia.reset();
    const std::string copia = kTres + registro("cuatro");
    prueba.bytes() = copia;
    EXPECT_EQ(prueba.archivo.cuenta(), 4);
    EXPECT_EQ(prueba.bytes(), copia);
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
