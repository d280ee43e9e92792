#include "cases/archivo_supuestos.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apoyo_casos.h"

namespace orvemo {
namespace {

using pruebas::borrado;
using pruebas::FicheroDePrueba;
using pruebas::kLongitud;
using pruebas::lineas;
using pruebas::registro;
using testing::ElementsAre;
using testing::IsEmpty;

class ArchivoSupuestosTest : public testing::Test, protected FicheroDePrueba {
  protected:
    void agrega(std::initializer_list<const char*> nombres) {
        for (const char* nombre : nombres) archivo.agrega(registro(nombre));
    }
};

TEST(CuentaDeRegistros, IsTheLengthOverTheRecordsAnExactHalfToEven) {
    struct Caso {
        const char* titulo;
        std::size_t longitudRegistro;
        std::size_t bytes;
        int registros;
    };
    const Caso kCasos[] = {
        {"empty", 297, 0, 0},
        {"two and 100 bytes", 297, 297 * 2 + 100, 2},
        {"two and 200 bytes", 297, 297 * 2 + 200, 3},
        {"half a record", 260, 130, 0},
        {"one and a half", 260, 390, 2},
        {"two and a half", 260, 650, 2},
        {"as many as there can be", 297, 297 * 32767, 32767},
        {"and less than a half more", 297, 297 * 32767 + 148, 32767},
    };
    for (const Caso& caso : kCasos) {
        pruebas::AlmacenMemoria almacen;
        almacen["casos.nom"].assign(caso.bytes, ' ');
        EXPECT_EQ((ArchivoSupuestos{almacen, "casos.nom", caso.longitudRegistro}.cuenta()), caso.registros)
            << caso.titulo;
    }
}

TEST(CuentaDeRegistros, AFileCutAnywhereListsItsRecordsAndTheLastPastItsHalf) {
    const std::string entero = registro("uno") + registro("dos") + registro("tres");
    const std::vector<std::string> todos{"1 uno", "2 dos", "3 tres"};
    for (std::size_t bytes = 0; bytes <= entero.size(); ++bytes) {
        FicheroDePrueba prueba;
        prueba.bytes() = entero.substr(0, bytes);
        const std::size_t enteros = bytes / kLongitud;
        const std::size_t cuenta = bytes % kLongitud >= 149 ? enteros + 1 : enteros;
        const std::vector<std::string> esperados(todos.begin(),
                                                 todos.begin() + static_cast<std::ptrdiff_t>(cuenta));
        ASSERT_EQ(lineas(prueba.archivo.lista()), esperados) << bytes << " bytes";
    }
}

TEST_F(ArchivoSupuestosTest, ListingAMissingFileCreatesItAndTheFirstSaveIsRecord1) {
    EXPECT_THAT(archivo.lista(), IsEmpty());
    EXPECT_TRUE(almacen.existe("desemp.nom"));
    EXPECT_EQ(archivo.agrega(registro("Ana", 'x', '*')), 1);
    EXPECT_EQ(bytes(), registro("Ana")) << "whole, and in use whatever its buffer said";
}

TEST_F(ArchivoSupuestosTest, ANewCaseTakesTheLowestFreeSlotAndThenTheEnd) {
    agrega({"uno", "dos", "tres", "cuatro", "cinco", "seis"});
    archivo.borra(5);
    archivo.borra(2);
    EXPECT_EQ(bytes().substr(kLongitud, kLongitud), borrado(registro("dos"))) << "the head alone";
    EXPECT_THAT(lineas(archivo.lista()), ElementsAre("1 uno", "3 tres", "4 cuatro", "6 seis"));
    EXPECT_EQ(archivo.agrega(registro("A")), 2);
    EXPECT_EQ(archivo.agrega(registro("B")), 5);
    EXPECT_EQ(archivo.agrega(registro("C")), 7);
    EXPECT_THAT(lineas(archivo.lista()),
                ElementsAre("1 uno", "2 A", "3 tres", "4 cuatro", "5 B", "6 seis", "7 C"));
}

TEST_F(ArchivoSupuestosTest, AnythingButAnAsteriskIsACaseInUse) {
    for (const char estado : {' ', '\0', 'A', '?', '\xFF'}) bytes() += registro("en uso", 'x', estado);
    bytes() += registro("libre", 'x', '*') + std::string(kLongitud, '\0');
    EXPECT_THAT(lineas(archivo.lista()),
                ElementsAre("1 en uso", "2 en uso", "3 en uso", "4 en uso", "5 en uso", "7 "));
}

TEST_F(ArchivoSupuestosTest, OverwritingByNameTakesTheFirstInUseWithThatVeryName) {
    bytes() = registro("Ana", 'x', '*') + registro("Ana", 'x', '\0') + registro("ana") + registro(" Ana") +
              registro("Ana") + registro("Ana");
    EXPECT_EQ(archivo.sobrescribePorNombre(registro("Ana", 'y')), 5);
    EXPECT_EQ(bytes().substr(4 * kLongitud), registro("Ana", 'y') + registro("Ana"));
    const std::string antes = bytes();
    EXPECT_EQ(archivo.sobrescribePorNombre(registro("Eva")), std::nullopt);
    EXPECT_EQ(bytes(), antes);
}

TEST_F(ArchivoSupuestosTest, APartialLastRecordThatCountsIsACaseThatCannotBeRead) {
    const std::string entero = registro("uno") + registro("dos");
    const std::string parcial = registro("tres").substr(0, 200);
    bytes() = entero + parcial;
    EXPECT_THAT(lineas(archivo.lista()), ElementsAre("1 uno", "2 dos", "3 tres"));
    EXPECT_THROW((void)archivo.lee(3), FicheroInaccesible) << "no blank case passes for it";
    EXPECT_EQ(archivo.agrega(registro("cuatro")), 4);
    EXPECT_EQ(bytes(), entero + parcial + std::string(97, '\0') + registro("cuatro"));

    bytes() = entero + parcial;
    archivo.sobrescribe(3, registro("otro"));
    EXPECT_EQ(bytes(), entero + registro("otro"));

    bytes() = entero + parcial.substr(0, 150);
    archivo.borra(3);
    EXPECT_EQ(bytes(), entero + borrado(registro("tres")).substr(0, 161));
    EXPECT_EQ(archivo.agrega(registro("nuevo")), 3);
}

// The file was removed while its list was on view: a save over record 3 made two cases of NULs before it.
TEST_F(ArchivoSupuestosTest, ARecordThatIsGoneIsNeitherReadNorWrittenAnywhereElse) {
    bytes() = registro("uno");
    for (const int r : {2, 3, 40000}) {
        EXPECT_THROW((void)archivo.lee(r), FicheroInaccesible) << r;
        EXPECT_THROW((void)archivo.entrada(r), FicheroInaccesible) << r;
        EXPECT_THROW(archivo.borra(r), FicheroInaccesible) << r;
    }
    EXPECT_THROW(archivo.sobrescribe(3, registro("tres")), FicheroInaccesible);
    EXPECT_EQ(bytes(), registro("uno"));
    archivo.sobrescribe(2, registro("dos"));
    EXPECT_EQ(bytes(), registro("uno") + registro("dos")) << "the place of an append";
}

TEST_F(ArchivoSupuestosTest, SeveralCasesAreAppendedAllOrNone) {
    bytes() = registro("uno") + registro("libre", 'x', '*') + registro("tres");
    const std::vector<std::string> nuevos{registro("dos", 'y', '\0'), registro("cuatro")};
    almacen.averia = {.bytes = 4 * kLongitud - 1};
    EXPECT_THROW(archivo.agregaTodos(nuevos), FicheroInaccesible);
    EXPECT_THAT(lineas(archivo.lista()), ElementsAre("1 uno", "3 tres"));
    archivo.agregaTodos(nuevos);
    EXPECT_EQ(bytes(), registro("uno") + nuevos[0] + registro("tres") + nuevos[1]) << "byte for byte";
    EXPECT_THROW(archivo.agregaTodos(std::vector(kMaxRegistros - 3, nuevos[0])), DemasiadosSupuestos);
    EXPECT_EQ(archivo.cuenta(), 4);
}

TEST_F(ArchivoSupuestosTest, APartialLastRecordThatDoesNotCountIsWrittenOver) {
    bytes() = registro("uno") + registro("dos") + registro("resto").substr(0, 100);
    EXPECT_THAT(lineas(archivo.lista()), ElementsAre("1 uno", "2 dos"));
    EXPECT_EQ(archivo.agrega(registro("tres")), 3);
    EXPECT_EQ(bytes(), registro("uno") + registro("dos") + registro("tres"));
}

TEST_F(ArchivoSupuestosTest, AFullFileTakesACaseOnlyInAFreeSlot) {
    for (int r = 1; r <= kMaxRegistros; ++r) bytes() += registro("lleno");
    const std::size_t longitud = bytes().size();
    try {
        archivo.agrega(registro("uno más"));
        ADD_FAILURE() << "there is no record 32768";
    } catch (const DemasiadosSupuestos& fallo) {
        EXPECT_STREQ(fallo.what(),
                     "el fichero \"desemp.nom\" no puede tener 32768 supuestos: el máximo es 32767");
    }
    EXPECT_EQ(bytes().size(), longitud);
    archivo.borra(kMaxRegistros);
    EXPECT_EQ(archivo.agrega(registro("uno más")), kMaxRegistros);
    EXPECT_EQ(archivo.lista().back().nombre, "uno más");
}

TEST_F(ArchivoSupuestosTest, AFileOf33000RecordsIsAnErrorAndNeverWrapsRound) {
    bytes().assign(33000 * kLongitud, ' ');
    const std::string antes = bytes();
    const auto mensaje = [](auto&& operacion) -> std::string {
        try {
            operacion();
            return "nothing failed";
        } catch (const DesbordeNumerico& fallo) {
            return fallo.what();
        }
    };
    const std::string esperado =
        "el fichero \"desemp.nom\" no puede tener 33000 supuestos: el máximo es 32767";
    EXPECT_EQ(mensaje([&] { (void)archivo.cuenta(); }), esperado);
    EXPECT_EQ(mensaje([&] { (void)archivo.lista(); }), esperado);
    EXPECT_EQ(mensaje([&] { archivo.agrega(registro("Ana")); }), esperado);
    EXPECT_EQ(mensaje([&] { archivo.sobrescribePorNombre(registro("Ana")); }), esperado);
    EXPECT_EQ(bytes(), antes);
}

TEST_F(ArchivoSupuestosTest, FreeSlotsAreFoundWhereverTheyLieInALongFile) {
    constexpr int kRegistros = 700;  // several times what is read at once
    for (int r = 1; r <= kRegistros; ++r) bytes() += registro("caso " + std::to_string(r));
    for (int r = 1; r <= kRegistros; ++r) {
        archivo.borra(r);
        ASSERT_EQ(archivo.lista().size(), static_cast<std::size_t>(kRegistros - 1));
        ASSERT_EQ(archivo.agrega(registro("caso " + std::to_string(r))), r);
    }
    EXPECT_EQ(archivo.agrega(registro("otro")), kRegistros + 1);
    EXPECT_EQ(lineas(archivo.lista())[456], "457 caso 457");
}

}  // namespace
}  // namespace orvemo
