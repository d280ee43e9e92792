#include <gtest/gtest.h>

#include "foundations/values/fallos.h"
#include "tax/personas.h"
#include "tax/retenciones.h"

namespace orvemo::irpf {
namespace {

using namespace pruebas;
using D = DatosRetencion;

/// A rise to 30000, 5844 of withholding by the year's rate, with 12000 received and 1800 withheld.
D subida(int Causa = 1) {
    return con(trabajador(30000), [&](D& d) {
        d.Regularizacion = 1;
        d.RetribucionAcumulada = 12000;
        d.RetencionAcumulada = 1800;
        d.RetencionInicial = 3600;
        d.BaseA = 18200;
        d.TipoA = 15;
        d.Causa = static_cast<std::uint8_t>(Causa - 1);
    });
}

/// Ceuta, special relation: 15% of 10000, most of it withheld; half the least rate is left.
D enCeuta() {
    return con(trabajador(10000, kEspecial), [](D& d) {
        d.CeutaMelilla = 1;
        d.Regularizacion = 1;
        d.RetribucionAcumulada = 5000;
        d.RetencionAcumulada = 1200;
        d.BaseA = 4000;
        d.TipoA = 8;
    });
}

const struct {
    const char* historia;
    D datos;
    double TipoRetencion, ImporteRetencion;
    const char* LimitaTipo;
} kCasos[] = {
    {"4044 over the 18000 left, within what the base has grown", subida(), 22.46, 5842.8, ""},
    {"the base grew by 1000 only: no more than 1000 over the 4000 of the start",
     con(subida(), [](D& d) { d.BaseA = 23200, d.RetencionInicial = 4000; }), 17.77, 4998.6, "S"},
    {"but not for the other causes",
     con(subida(15), [](D& d) { d.BaseA = 23200, d.RetencionInicial = 4000; }), 22.46, 5842.8, ""},
    {"the base didn't grow: the rate stays at 15", con(subida(2), [](D& d) { d.BaseA = 24200; }), 15, 4500,
     "S"},
    {"a cap under the floor of a short contract leaves the floor",
     con(subida(),
         [](D& d) {
             d.TipoContrato = kCorto;
             d.BaseA = 24100;
             d.RetencionInicial = 1900;
         }),
     2, 2160, "S"},
    {"all withheld already", con(subida(15), [](D& d) { d.RetencionAcumulada = 6000; }), 0, 6000, ""},
    // 1170 at the half rate stand for 2340: 3504 over 18000 is 19.46, halved.
    {"half the rate in Ceuta, what was borne there doubled",
     con(subida(15), [](D& d) { d.CeutaMelilla = d.Rencemea = 1, d.RetencionAcumulada = 1170; }), 9.73,
     2921.4, ""},
    {"who comes to live in Ceuta has borne the whole rate: 4674 over 18000 is 25.96, halved",
     con(subida(13),
         [](D& d) { d.CeutaMelilla = d.Rencemea = 1, d.RetencionAcumulada = 1170, d.TipoA = 45; }),
     12.98, 3506.4, ""},
    {"who starts to work outside had borne half, and pays the whole: 19.46",
     con(subida(14), [](D& d) { d.Rencemea = 1, d.RetencionAcumulada = 1170; }), 19.46, 4672.8, ""},
    {"a special relation of Ceuta at half of 15", enCeuta(), 7.5, 1575, ""},
};

TEST(Regularizacion, CadaCamino) {
    for (const auto& caso : kCasos) {
        SCOPED_TRACE(caso.historia);
        const auto r = CalculaRetencion(caso.datos);
        EXPECT_DOUBLE_EQ(r.TipoRetencion, caso.TipoRetencion);
        EXPECT_DOUBLE_EQ(r.ImporteRetencion, caso.ImporteRetencion);
        EXPECT_EQ(r.LimitaTipo, caso.LimitaTipo);
    }
}

TEST(Regularizacion, TrasUnTopeRigenLosMinimosDelResto) {
    const auto antes = CalculaRetencion(con(subida(2), [](D& d) { d.BaseA = 24200; }));
    const auto despues = CalculaRetencion(enCeuta(), antes.LimitaTipo);
    EXPECT_DOUBLE_EQ(despues.TipoRetencion, 8);
    EXPECT_DOUBLE_EQ(despues.ImporteRetencion, 1600);
    EXPECT_EQ(despues.LimitaTipo, "S");
    EXPECT_DOUBLE_EQ(CalculaRetencion(trabajador(30000), despues.LimitaTipo).TipoRetencion, 19.48);
}

TEST(Regularizacion, SinNadaPorPercibirFalla) {
    EXPECT_THROW((void)CalculaRetencion(con(subida(), [](D& d) { d.RetribucionAcumulada = 30000; })),
                 DivisionPorCero);
}

}  // namespace
}  // namespace orvemo::irpf
