#include "tax/retenciones.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "foundations/values/fallos.h"
#include "tax/personas.h"

namespace orvemo::irpf {
namespace {

using namespace pruebas;
using D = DatosRetencion;

TEST(Retenciones, LaEscalaConSusDosEscalones) {
    const std::array<std::array<double, 2>, 9> filas{{{0, 0},
                                                      {4079.99, 612},
                                                      {4080, 612},
                                                      {13879.99, 2964},
                                                      {13880, 2956.16},
                                                      {26075.99, 6371.04},
                                                      {26076, 6349.44},
                                                      {45900, 13684.32},
                                                      {50000, 15529.32}}};
    for (const auto& [base, cuota] : filas) EXPECT_DOUBLE_EQ(CuotaRetencion(base), cuota) << base;
}

const struct {
    const char* historia;
    D datos;
    bool Exento;
    double TipoRetencion, ImporteRetencion;
} kCasos[] = {
    {"nobody depends: 24201 of base, 5846.04 of tax, 19.486%", trabajador(30001), false, 19.48, 5844.19},
    {"nothing left after costs", con(trabajador(9000), [](D& d) { d.Gastos = 22000; }), false, 0, 0},
    // 13135.01 less 2400, 3400 and 2900: 697.20 of tax, but the cap is a third of a cent.
    {"a cent above the exempt minimum the cap leaves nothing",
     con(trabajador(13135.01),
         [](D& d) {
             d.SituacionFamiliar = 2;
             d.Hijos[0] = d.Hijos[1] = hijo(1990);
         }),
     false, 0, 0},
    {"a pensioner's limit is 600 higher", con(trabajador(8115), [](D& d) { d.SituacionLaboral = 1; }), true,
     0, 0},
    {"an unemployed's 1200", con(trabajador(8715.01), [](D& d) { d.SituacionLaboral = 2; }), false, 0, 0},
    {"35% of what passes 7515 is less than the tax of 105", trabajador(7600), false, 0.39, 29.64},
    {"alone with children, but without any: no minimum and no cap",
     con(trabajador(7600), [](D& d) { d.SituacionFamiliar = 1; }), false, 1.38, 104.88},
    {"an exempt short contract is held at 2", trabajador(7000, kCorto), true, 2, 140},
    {"a special relation of Ceuta: 15, and half of it",
     con(trabajador(7000, kEspecial), [](D& d) { d.CeutaMelilla = 1; }), true, 7.5, 525},
    {"no pay at all on a short contract", trabajador(0, kCorto), true, 2, 0},
    {"a millionaire stops at 45", con(trabajador(20000000), [](D& d) { d.Reducciones = -1000000; }), false,
     45, 9000000},
};

TEST(Retenciones, CadaCamino) {
    for (const auto& caso : kCasos) {
        SCOPED_TRACE(caso.historia);
        const auto r = CalculaRetencion(caso.datos);
        EXPECT_EQ(r.Exento, caso.Exento);
        EXPECT_DOUBLE_EQ(r.TipoRetencion, caso.TipoRetencion);
        EXPECT_DOUBLE_EQ(r.ImporteRetencion, caso.ImporteRetencion);
    }
}

TEST(Retenciones, ElMinimoExentoPorSituacionYDescendientes) {
    const struct {
        std::uint8_t situacion;
        std::size_t hijos;
        double minimo;
    } filas[] = {{1, 1, 10750}, {1, 2, 12030}, {2, 0, 10600}, {2, 1, 11825},
                 {2, 2, 13135}, {3, 0, 7515},  {3, 1, 8215},  {3, 3, 8965}};
    for (const auto& fila : filas) {
        D datos = trabajador(fila.minimo);
        datos.SituacionFamiliar = fila.situacion;
        for (std::size_t i = 0; i < fila.hijos; ++i) datos.Hijos.at(2 * i) = hijo(1990);
        EXPECT_TRUE(CalculaRetencion(datos).Exento) << fila.minimo;
        datos.Retribuciones += 0.01;
        EXPECT_FALSE(CalculaRetencion(datos).Exento) << fila.minimo;
    }
}

TEST(Retenciones, LoQueNoCabeFallaYUnAnioImposibleNo) {
    EXPECT_THROW((void)CalculaRetencion(trabajador(99999999)), DesbordeNumerico);
    D datos = trabajador(20000);
    datos.AnioNacimiento = std::numeric_limits<std::int32_t>::min();
    EXPECT_NO_THROW((void)CalculaRetencion(datos));
}

}  // namespace
}  // namespace orvemo::irpf
