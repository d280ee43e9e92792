#include "capital/tarifas/tarifas.h"

#include <gtest/gtest.h>

#include <string>

#include "apoyo/almacen_memoria.h"
#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "genera_tarifas/mortalidad.h"
#include "genera_tarifas/rentas.h"

namespace orvemo::capital {
namespace {

using enum TopeHijo;

const DirectorioAplicacion kDatos{ORVEMO_DATOS};
const Tarifas kDe21{kDatos, Veintiuno};
const Tarifas kDe23{kDatos, Veintitres};

struct Fichero {
    std::string nombre;
    std::size_t longitud, clave, filas;  // bytes of a row, of its key, and rows
};
// clang-format off
const Fichero kTarifs[] = {{"tarif1.nom", 14, 3, 105}, {"tarif2.nom", 14, 3, 103}, {"tarif3.nom", 67, 2, 55},
    {"tarif4.nom", 22, 2, 24}, {"tarif5.nom", 193, 2, 59}, {"tarif6.nom", 193, 2, 59}, {"tarif7.nom", 211, 2, 23},
    {"Tarif8A.NOM", 59, 3, 104}, {"tarif9.nom", 22, 2, 24}, {"Tarif8B.NOM", 113, 3, 98}, {"Tarif8C.NOM", 113, 3, 86},
    {"Tarif8d.NOM", 59, 3, 74}, {"Tarif8e.NOM", 113, 3, 68}, {"Tarif8f.NOM", 59, 3, 56}, {"Tarif8g.NOM", 113, 3, 50},
    {"Tarif8h.NOM", 59, 3, 38}, {"Tarif8i.NOM", 113, 3, 32}, {"Tarif8j.NOM", 59, 3, 20}, {"Tarif8k.NOM", 104, 3, 14}};
// clang-format on

/// What stands in that row and column, counted from 1.
float en(const Fichero& f, std::size_t fila, std::size_t columna) {
    const std::size_t posicion = (fila - 1) * f.longitud + f.clave + (columna - 1) * 9;
    return static_cast<float>(ValComa(kDatos.leeTodo(f.nombre).substr(posicion, 9)));
}

TEST(Tarifas, CadaLecturaVaASuFicheroFilaYColumna) {
    for (const Fichero& f : kTarifs)
        EXPECT_EQ(kDatos.leeTodo(f.nombre).size(), f.longitud * f.filas) << f.nombre;
    EXPECT_EQ(kDe21.Tarifa1(104), en(kTarifs[0], 105, 1));
    EXPECT_EQ(kDe21.Tarifa3(65, 6), en(kTarifs[2], 50, 7));
    EXPECT_EQ(kDe21.Tarifa3(65, 7), en(kTarifs[1], 73, 1)) << "long since invalid";
    EXPECT_EQ(kDe21.Tarifa4(20), en(kTarifs[3], 21, 1));
    EXPECT_EQ(kDe23.Tarifa4(20), en(kTarifs[3], 21, 2));
    EXPECT_EQ(kDe21.Tarifa5(40, 1), en(kTarifs[4], 29, 1));
    EXPECT_EQ(kDe21.Tarifa6(40, 20), en(kTarifs[5], 29, 21));
    EXPECT_EQ(kDe21.Tarifa7(3, 20), en(kTarifs[6], 21, 4)) << "the elder first";
    EXPECT_EQ(kDe21.Tarifa8(10, 5), en(kTarifs[7], 11, 6));
    EXPECT_EQ(kDe21.Tarifa8(10, 12), en(kTarifs[9], 7, 5)) << "the elder first";
    EXPECT_EQ(kDe21.Tarifa8(47, 47), en(kTarifs[12], 12, 12));
    EXPECT_EQ(kDe21.Tarifa8(100, 103), en(kTarifs[18], 14, 11));
    EXPECT_EQ(kDe23.Tarifa9(20), en(kTarifs[8], 21, 2));
}

TEST(Tarifas, FueraDeSusEdadesDanCero) {
    const float ceros[] = {
        kDe21.Tarifa1(105),     kDe21.Tarifa1(-1),     kDe21.Tarifa2(103),    kDe21.Tarifa3(15, 7),
        kDe21.Tarifa3(71, 7),   kDe21.Tarifa3(70, 33), kDe21.Tarifa3(40, -1), kDe21.Tarifa4(22),
        kDe23.Tarifa4(24),      kDe21.Tarifa5(70, 0),  kDe21.Tarifa5(70, 22), kDe21.Tarifa5(71, 1),
        kDe21.Tarifa6(71, 20),  kDe21.Tarifa6(40, 21), kDe21.Tarifa7(23, 3),  kDe21.Tarifa8(103, 101),
        kDe21.Tarifa8(104, 50), kDe21.Tarifa8(50, -1), kDe21.Tarifa9(21),     kDe23.Tarifa9(24),
    };
    for (const float cero : ceros) EXPECT_EQ(cero, 0) << &cero - ceros;
}

TEST(Tarifas, LosFicherosMalosDanCeroYLosQueFaltanSuError) {
    pruebas::AlmacenMemoria almacen;
    const Tarifas tarifas{almacen, Veintiuno};
    almacen["TARIF1.NOM"] = "  0 118,5070\r\n???118.5070\r\n  2  NO HAY \r\n  3      7,5";
    const float leidas[] = {118.507F, 118.507F, 0, 7.5F, 0};
    for (int x = 0; x < 5; ++x) EXPECT_EQ(tarifas.Tarifa1(x), leidas[x]) << x;
    EXPECT_EQ(tarifas.Tarifa2(103), 0) << "out of range: the file isn't even opened";
    EXPECT_THROW((void)tarifas.Tarifa2(40), FicheroInaccesible);
    EXPECT_FALSE(almacen.existe("tarif2.nom"));
    almacen["tarif2.nom"] = "  0     1E99\r\n";
    EXPECT_THROW((void)tarifas.Tarifa2(0), DesbordeNumerico);
}

TEST(Tarifas, LasQueSeEntreganSonLasRentasDeDocePagas) {
    const DirectorioAplicacion fuentes{ORVEMO_FUENTES};
    const tarifas::Rentas rentas{tarifas::LeeMortalidad(fuentes.leeTodo("mortalidad.csv"))};
    const auto espera = [](float leida, double renta, int x, int y) {
        EXPECT_NEAR(leida, renta * 12, 0.00006) << x << ' ' << y;
    };
    for (int x = 16; x <= 70; ++x) {
        espera(kDe21.Tarifa1(x), rentas.Tarifa1(x), x, 0);
        for (int d = 0; d <= 12; ++d) espera(kDe21.Tarifa3(x, d), rentas.Tarifa3(x, d), x, d);
        for (int y = 0; y <= 20; ++y) {
            espera(kDe21.Tarifa4(y), rentas.Tarifa4(y, Veintiuno), y, 0);
            espera(kDe21.Tarifa9(y), rentas.Tarifa9(y, Veintiuno), y, 0);
            espera(kDe21.Tarifa5(x, y + 1), rentas.Tarifa5(x, y + 1), x, y + 1);
            espera(kDe21.Tarifa6(x, y), rentas.Tarifa6(x, y), x, y);
            espera(kDe21.Tarifa7(y, x % 23), rentas.Tarifa7(y, x % 23), y, x % 23);
            espera(kDe21.Tarifa8(x, 5 * y), rentas.Tarifa8(x, 5 * y), x, 5 * y);
        }
    }
    EXPECT_EQ(kDatos.leeTodo("tarif4.nom").substr(std::size_t{10} * 22, 22), "10 101.8263 115.1115\r\n");
}

}  // namespace
}  // namespace orvemo::capital
