#include "tax/liquidos.h"

#include <gtest/gtest.h>

#include "foundations/values/fallos.h"
#include "tax/personas.h"

namespace orvemo::liquidos {
namespace {

constexpr int kSinCuota = 2;

DatosLiquidos pide(double Neto, int Extra, int Grupo, int TipoContrato) {
    return {.Neto = Neto,
            .Extra = Extra,
            .Grupo = Grupo,
            .TipoContrato = TipoContrato,
            .persona = irpf::pruebas::trabajador(0)};
}

const struct {
    const char* historia;
    DatosLiquidos datos;
    TextosLiquidos textos;
    int vueltas;  // 0: as many as it likes
} kCasos[] = {
    // 14 pays of B: 14.14% of withholding and 6.35% of B x 14 / 12, so B = 1000 / 0.784516...
    {"a graduate, 1000 in hand in fourteen pays",
     pide(1000, 2, 1, 0),
     {"1.274,67", "17.845,38", "14", "180,24", "2.523,34", "94,43", "1.000,00"},
     0},
    {"little pay: 6.35% of the minimum base and no tax",
     pide(400, 0, 8, 0),
     {"438,00", "5.256,06", "", "0,00", "0,00", "38,00", "400,00"},
     0},
    {"nothing in hand still costs the contribution, 6.4% of 598.5, over 0.98",
     pide(0, 0, 8, 1),
     {"39,09", "469,03", "2", "0,78", "9,38", "38,30", "0,01"},
     0},
    {"850 over 0.85, exact at the second turn",
     pide(850, 0, 1, kSinCuota),
     {"1.000,00", "12.000,00", "15", "150,00", "1.800,00", "0,00", "850,00"},
     2},
    {"600 over 0.85, that no text of 15 digits tells",
     pide(600, 0, 1, kSinCuota),
     {"705,88", "8.470,59", "15", "105,88", "1.270,59", "0,00", "600,00"},
     500},
};

TEST(Liquidos, CadaCamino) {
    for (const auto& caso : kCasos) {
        SCOPED_TRACE(caso.historia);
        const auto resultado = LiquidosCalcular(caso.datos);
        if (caso.vueltas != 0) {
            EXPECT_EQ(resultado.vueltas, caso.vueltas);
        }
        EXPECT_EQ(TextosDe(resultado), caso.textos);
    }
}

TEST(Liquidos, PorEncimaDeLaBaseMaximaLaCuotaNoCrece) {
    EXPECT_DOUBLE_EQ(LiquidosCalcular(pide(4000, 2, 1, 0)).CuotaSS,
                     LiquidosCalcular(pide(5000, 2, 1, 0)).CuotaSS);
    EXPECT_NEAR(LiquidosCalcular(pide(4000, 2, 1, 0)).CuotaSS, 2813.4 * 0.0635, 1e-9);
}

TEST(Liquidos, LaRegularizacionDeLaPersonaNoCuenta) {
    DatosLiquidos datos = pide(1000, 2, 1, 0);
    datos.persona.Regularizacion = 1;
    datos.persona.SituacionLaboral = 2;
    datos.persona.Gastos = 3000;
    EXPECT_EQ(TextosDe(LiquidosCalcular(datos)).LiquidosBruto, "1.274,67");
}

TEST(Liquidos, MasPagasDeLasQueCabenEnUnByteFallan) {
    EXPECT_NO_THROW((void)LiquidosCalcular(pide(1000, 243, 1, 0)));
    EXPECT_THROW((void)LiquidosCalcular(pide(1000, 244, 1, 0)), DesbordeNumerico);
    EXPECT_THROW((void)LiquidosCalcular(pide(1000, -13, 1, 0)), DesbordeNumerico);
    EXPECT_THROW((void)LiquidosCalcular(pide(9e8, 2, 1, 0)), DesbordeNumerico);
}

}  // namespace
}  // namespace orvemo::liquidos
