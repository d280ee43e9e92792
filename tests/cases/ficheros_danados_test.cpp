// Case files that are cut short, empty, full of anything or too long: what can be read is listed.

#include <gtest/gtest.h>

#include <random>

#include "apoyo_casos.h"
#include "foundations/values/textos.h"

namespace orvemo {
namespace {

using pruebas::FicheroDePrueba;
using pruebas::kLongitud;
using pruebas::lineas;
using pruebas::registro;

TEST(FicherosDanados, AFileCutAnywhereListsItsRecordsAndTheLastPastItsHalf) {
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

/// Any length, any bytes, asterisks and blanks more often than not.
std::string bytesAlAzar(std::mt19937& azar) {
    std::string bytes(azar() % 20000, '\0');
    const auto clase = azar() % 3;
    for (char& byte : bytes) {
        const auto tirada = azar();
        byte = static_cast<char>(tirada >> 8U);
        if (clase == 1 && tirada % 2 == 0) byte = '*';
        if (clase == 2 && tirada % 2 == 0) byte = ' ';
    }
    return bytes;
}

TEST(FicherosDanados, AnyBytesAreListedReadErasedAndWrittenOver) {
    constexpr std::size_t kLongitudes[] = {207, 239, 260, 274, 297, 307, 341, 482, 863, 1046, 1411, 2592};
    std::mt19937 azar{1899};
    for (int vez = 0; vez < 300; ++vez) {
        const std::size_t longitud = kLongitudes[static_cast<std::size_t>(vez) % std::size(kLongitudes)];
        pruebas::AlmacenMemoria almacen;
        ArchivoSupuestos archivo{almacen, "casos.nom", longitud};
        almacen["casos.nom"] = bytesAlAzar(azar);
        const auto lista = OrdenaAlfabeticamente(archivo.lista());
        ASSERT_LE(lista.size(), static_cast<std::size_t>(archivo.cuenta()));
        for (const EntradaSupuesto& entrada : lista) {
            ASSERT_LE(CuentaCaracteres(entrada.nombre), kAnchoNombre);
            ASSERT_NE(archivo.lee(entrada.registro).front(), '*');
        }
        std::string nuevo = registro("nuevo");
        nuevo.resize(longitud, 'x');
        const int r = archivo.agrega(nuevo);
        ASSERT_EQ(archivo.lee(r), nuevo);
        ASSERT_EQ(archivo.lista().size(), lista.size() + 1);
        archivo.borra(r);
        ASSERT_EQ(archivo.lista().size(), lista.size());
    }
}

}  // namespace
}  // namespace orvemo
