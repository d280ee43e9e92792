#include "shell/config_nom.h"

#include <gmock/gmock.h>

#include "shell/apoyo_shell.h"

namespace orvemo::pruebas {
namespace {

TEST(ConfigNom, LosDieciseisRegistrosQuedanEscritosByteAByte) {
    std::array<RegistroConfig, kRegistrosConfig> registros;
    for (RegistroConfig& registro : registros) registro.Texto.asigna("");
    for (RegistroConfig& registro : registros) registro.Orden.asigna("");
    registros[0].Numero = 999;
    registros[0].Texto.asigna("Año 2005 – 1 €");
    registros[7].Numero = 6;
    registros[7].ponActiva(true);
    registros[7].Orden.asigna("12");
    registros[15].Numero = -2;
    registros[15].Texto.asigna(std::string(300, 'x'));

    EntornoFalso mundo;
    EscribeConfig(mundo.almacen, registros);

    std::string esperado = registroConfig(999, 0, "A\xF1o 2005 \x96 1 \x80");
    for (int i = 1; i < 16; ++i) {
        if (i == 7) {
            esperado += registroConfig(6, -1, "", "12");
        } else if (i == 15) {
            esperado += registroConfig(0xFFFFFFFE, 0, std::string(248, 'x'));
        } else {
            esperado += registroConfig(0, 0);
        }
    }
    EXPECT_EQ(mundo.almacen["CONFIG.NOM"], esperado);
    EXPECT_EQ(esperado.size(), 4096U);
}

TEST(ConfigNom, LoQueNoEstaEnElFicheroSeLeeVacio) {
    EntornoFalso mundo;
    mundo.almacen["config.nom"] = registroConfig(999, -1, "Sin terminar").substr(0, 12);
    ConfigNom config{mundo.almacen};

    EXPECT_EQ(config.lee(1).Texto.utf8(), "Sin te");
    EXPECT_TRUE(config.lee(1).activa());
    const RegistroConfig ausente = config.lee(16);
    EXPECT_EQ(ausente.Numero, 0);
    EXPECT_FALSE(ausente.activa());
    EXPECT_EQ(ausente.Texto.utf8(), "");
    EXPECT_EQ(ausente.Orden.utf8(), "");
}

}  // namespace
}  // namespace orvemo::pruebas
