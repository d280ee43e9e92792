#include <gtest/gtest.h>

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
    {"in Ceuta the floor is half",
     con(subida(),
         [](D& d) {
             d.CeutaMelilla = 1;
             d.TipoContrato = kCorto;
             d.BaseA = 24100;
             d.RetencionInicial = 1850;
         }),
     1, 1980, "S"},
    // 4600 of 7500 over 6000 is 48.33, which brings 20 cents too much.
    {"more received than the pay of the year: the cap takes a point off",
     con(subida(),
         [](D& d) { d.RetribucionAcumulada = 36000, d.RetencionAcumulada = 7500, d.BaseA = 23200; }),
     47.33, 4660.2, "S"},
    {"all withheld already", con(subida(15), [](D& d) { d.RetencionAcumulada = 6000; }), 0, 6000, ""},
    // 1170 at the half rate stand for 2340: 3504 over 18000 is 19.46, halved.
    {"half the rate in Ceuta, what was borne there doubled",
     con(subida(15), [](D& d) { d.CeutaMelilla = d.Rencemea = 1, d.RetencionAcumulada = 1170; }), 9.73,
     2921.4, ""},
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

TEST(Regularizacion, CuatroCausasAdmitenCualquierSubida) {
    for (int causa = 1; causa <= 15; ++causa) {
        const auto r = CalculaRetencion(con(subida(causa), [](D& d) { d.BaseA = 23200; }));
        const bool cualquiera = causa == 11 || causa == 12 || causa >= 14;
        EXPECT_DOUBLE_EQ(r.TipoRetencion, cualquiera ? 22.46 : 15.55) << causa;
    }
}

}  // namespace
}  // namespace orvemo::irpf
