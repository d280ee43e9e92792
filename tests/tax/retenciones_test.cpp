#include "tax/retenciones.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "foundations/values/fallos.h"
#include "tax/conclusiones_irpf.h"
#include "tax/personas.h"

namespace orvemo::irpf {
namespace {

using namespace pruebas;
using D = DatosRetencion;

TEST(Retenciones, UnaFamiliaEntera) {
    const D datos = con(trabajador(24000), [](D& d) {
        d.Gastos = 1524;
        d.Hijos[0] = hijo(1998, 0);
        d.Hijos[3] = hijo(2003, 0);                // a hole in the list counts for nobody
        d.Ascendientes[0] = ascendiente(1928, 2);  // 76, shared with a brother
    });
    // 22476 net, less 2400 of work, 3400, 700 + 750 of the children, 600 of the little one, 400 + 500 of the
    // old father: 13726. Tax 2927.04, 12.196%.
    const auto resultado = CalculaRetencion(datos);
    Dictamen dictamen;
    EscribeConclusiones(datos, resultado, dictamen);
    EXPECT_TRUE(dictamen.ConDerecho);
    EXPECT_EQ(dictamen.Conclusion(),
              "- Situación Familiar ................................ 3\r\n"
              "- Situación Laboral ................................ Activo\r\n"
              "- Tipo de contrato .................................. Régimen General\r\n"
              "- Rendimientos obtenidos en Ceuta y Melilla ......... No\r\n"
              "- Discapacidad ...................................... Sin discapacidad\r\n"
              "- Ingresos Anuales .................................. 24.000,00\r\n"
              "- Reducciones Art. 17.2 ............................. 0,00\r\n"
              "- Gastos Anuales <<art. 17.3 a), b) y c)>> .......... 1.524,00\r\n"
              "- Pensión compensatoria en favor del cónyuge......... 0,00\r\n"
              "- Anualidades a favor de los hijos .................. 0,00\r\n"
              "- Descendientes menores de 3 años ................... 1\r\n"
              "- Descendientes entre 3 y 25 años ................... 1\r\n"
              "- Descendientes discapacitados (>=33% y <65%)........ 0\r\n"
              "- Descendientes discapacitados (>=65%) .............. 0\r\n"
              "- Descendientes discapacitados movilidad reducida.... 0\r\n"
              "- Descendientes adoptados en los últimos 3 años ..... 0\r\n"
              "- Descendientes totales ............................. 2\r\n"
              "- Descendientes totales computados por entero ....... 0\r\n"
              "- Ascendientes discapacitados (>=33% y <65%)........ 0\r\n"
              "- Ascendientes discapacitados (>=65%) .............. 0\r\n"
              "- Ascendientes discapacitados movilidad reducida.... 0\r\n"
              "- Ascendientes totales ............................. 1\r\n"
              "- Ascendientes totales computados por entero ....... 0\r\n"
              "- Reducciones por personas mayores de 65 años ...... 400,00\r\n"
              "- Reducciones por personas mayores de 75 años ...... 500,00\r\n"
              "- Reducciones por personas con discapacidad ........ 0,00\r\n"
              "- Reducciones por otros conceptos .................. 7.850,00\r\n"
              "- RENDIMIENTOS NETOS TOTALES ....................... 22.476,00\r\n"
              "- REDUCCIONES TOTALES DE LA BASE ................... 8.750,00\r\n"
              "- BASE PARA LA RETENCIÓN ........................... 13.726,00\r\n"
              " LE CORRESPONDEN EL TIPO E IMPORTE ANUAL DE RETENCIÓN SIGUIENTES:\r\n"
              "- Tipo de Retención ................................. 12,19\r\n"
              "- Importe anual de la retención ..................... 2.925,60\r\n");
}

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
    {"nobody depends: 24200 of base, 5845.76 of tax, 19.486%", trabajador(30000), false, 19.48, 5844},
    {"wife without income and two children, at the limit",
     con(trabajador(13135),
         [](D& d) {
             d.SituacionFamiliar = 2;
             d.Hijos[0] = d.Hijos[1] = hijo(1990);
         }),
     true, 0, 0},
    // 13135.01 less 2400, 3400 and 2900: 697.20 of tax, but the cap is a third of a cent.
    {"a cent above it the cap leaves nothing",
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
    {"maintenance of 3600 taxed apart from 20600: 540 + 4837.76",
     con(trabajador(30000), [](D& d) { d.Anualidades = 3600; }), false, 17.92, 5376},
    {"active at 65%: 6200 + 5000 + 2000 less, 11000 of base",
     con(trabajador(30000), [](D& d) { d.Discapacidad = 1, d.GradoDiscapacidad = 2; }), false, 7.57, 2271},
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

TEST(Retenciones, LosHijosPorOrdenPesoEdadYDiscapacidad) {
    const auto r = CalculaRetencion(con(trabajador(60000), [](D& d) {
        d.Hijos[0] = hijo(1980);              // 24: the last year among the young
        d.Hijos[1] = hijo(1979, 1, 0, 3);     // 25; 5000 + 2000
        d.Hijos[2] = hijo(2002, 2);           // 2, shared: 1100 + 600
        d.Hijos[4] = hijo(1990, 1, 2002, 2);  // adopted at 12: 2300 + 1200, 2000 + 2000
        d.Hijos[9] = hijo(1983, 1, 2002);     // adopted at 19, too late: 2300
    }));
    // 1400 + 1500 + 1100 + 2300 + 2300, 600 + 1200, a family of three 600; disability 11000; 2400 + 3400.
    EXPECT_DOUBLE_EQ(r.ReduccionesBase, 27800);
    EXPECT_DOUBLE_EQ(r.PorDiscapacidad, 11000);
    EXPECT_EQ(r.NumDescendientes, 5);
    EXPECT_EQ(r.NumEnteros, 4);
    EXPECT_EQ(r.NumMenores3, 1);
    EXPECT_EQ(r.NumDe3a25, 3);
    EXPECT_EQ(r.NumAdoptados, 2);
    EXPECT_EQ(r.NumDescDisc33, 1);
    EXPECT_EQ(r.NumDescDisc65, 1);
    EXPECT_EQ(r.NumDescMovilidad, 1);
}

TEST(Retenciones, LosMayoresSeReparten) {
    const auto r = CalculaRetencion(con(trabajador(60000), [](D& d) {
        d.AnioNacimiento = 1929;                      // 75: 800 and 1000
        d.Ascendientes[0] = ascendiente(1930, 3);     // 74: 266.67
        d.Ascendientes[1] = ascendiente(1929, 3, 2);  // 75: 266.67, 333.33, and 4000 / 3
        d.Ascendientes[2] = ascendiente(1905, 0, 3);  // nobody shares: 800, 1000, 7000
    }));
    EXPECT_DOUBLE_EQ(r.MayorDe65, 800 + 1333.33);
    EXPECT_DOUBLE_EQ(r.MayorDe75, 1000 + 1333.33);
    EXPECT_DOUBLE_EQ(r.PorDiscapacidad, 5666.67 + 2666.67);
    EXPECT_EQ(r.NumAscendientes, 3);
    EXPECT_EQ(r.NumAscEnteros, 1);
    EXPECT_EQ(r.NumAscDisc33, 1);
    EXPECT_EQ(r.NumAscDisc65, 1);
    EXPECT_EQ(r.NumAscMovilidad, 1);
}

TEST(Retenciones, UnRegistroDanadoDaUnFalloOUnaConclusion) {
    const auto calcula = [](char byte) {
        DatosRetencion datos;
        kDiseno.lee(std::string(kDiseno.longitud(), byte), datos);
        Dictamen dictamen;
        EscribeConclusiones(datos, CalculaRetencion(datos), dictamen);
    };
    EXPECT_THROW(calcula('\xFF'), Fallo);  // every amount is NaN
    EXPECT_NO_THROW(calcula('\x00'));
    EXPECT_NO_THROW((void)CalculaRetencion(
        con(trabajador(20000), [](D& d) { d.AnioNacimiento = std::numeric_limits<std::int32_t>::min(); })));
    EXPECT_THROW((void)CalculaRetencion(trabajador(99999999)), DesbordeNumerico);
}

}  // namespace
}  // namespace orvemo::irpf
