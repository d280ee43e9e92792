#include "benefits/nocontributiva.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"

namespace orvemo::nocontributiva {
namespace {

const Fecha kHoy = FechaDMA(15, 6, 2005);

/// Someone who lives alone, without income, ten years in Spain, of that age today.
RegistroNoContributiva solo(int edad) {
    RegistroNoContributiva caso;
    caso.FechaNac = SumaFecha(Intervalo::Anio, -edad, kHoy);
    caso.Estancia = 10;
    caso.NumMiembros = 1;
    caso.NumBenef = 1;
    return caso;
}

std::string primeraLinea(int edad) {
    return "El interesado desea solicitar una pensión no contributiva a los " + std::to_string(edad) +
           " años.\r\n";
}
const std::string kCumpleEdad =
    "Cumple la condición edad al ser mayor de 18 años y tener minusvalía > 65%\r\n";
const std::string kResidencia =
    "Debe haber residido legalmente en España los 2 años inmediatamente\r\n"
    "anteriores a la solicitud\r\n";
const std::string kEntera =
    "La pensión a percibir será de 4.043,06 € anuales.\r\n"
    "repartidas en 14 pagas de 288,79 €.\r\n";

struct Supuesto {
    const char* historia;
    int edad;
    void (*prepara)(RegistroNoContributiva&);
    bool derecho;
    std::string conclusion;  // after the first line
};

const Supuesto kSupuestos[] = {
    {"65 today, alone: the whole pension, 4043.06 in 14", 65, [](RegistroNoContributiva&) {}, true,
     kResidencia + kEntera},
    {"64: too young", 64, [](RegistroNoContributiva&) {}, false,
     "No tiene la edad mínima de 65 años para optar la pensión no contributiva.\r\n"
     "NO TIENE DERECHO A PENSIÓN\r\n"},
    {"disabled at 19, nine years of residence", 19,
     [](RegistroNoContributiva& c) {
         c.Minusvalia = 1;
         c.Estancia = 9;
     },
     true, kCumpleEdad + kResidencia + kEntera},
    {"disabled at 17", 17, [](RegistroNoContributiva& c) { c.Minusvalia = 1; }, false,
     "Debe ser mayor de 18 años para optar a la pensión por incapacidad > 65%\r\n"
     "NO TIENE DERECHO A PENSIÓN\r\n"},
    {"disabled at exactly 18 is told the message of the 65", 18,
     [](RegistroNoContributiva& c) { c.Minusvalia = 1; }, false,
     "No tiene la edad mínima de 65 años para optar la pensión no contributiva.\r\n"
     "NO TIENE DERECHO A PENSIÓN\r\n"},
    {"disabled at 70 needs ten years like anybody", 70,
     [](RegistroNoContributiva& c) {
         c.Minusvalia = 1;
         c.Estancia = 9;
     },
     false,
     "No lleva viviendo en España el mínimo de 10 años establecido\r\n"
     "como requisito.\r\n"
     "NO PUEDE RECIBIR PENSION."},
    {"disabled at 30 needs five", 30,
     [](RegistroNoContributiva& c) {
         c.Minusvalia = 1;
         c.Estancia = 4;
     },
     false,
     kCumpleEdad + "No lleva viviendo en España el mínimo de 5 años establecido\r\n"
                   "como requisito para personas con incapacidad.\r\n"
                   "NO PUEDE RECIBIR PENSION."},
    {"living with parents but counted alone: no multiplier", 65,
     [](RegistroNoContributiva& c) { c.Convive = 1; }, true, kResidencia + kEntera},
    {"2.5 x (4043.06 + 2830.142) = 17183.005, rounded 17183.01: a cent above is too much", 65,
     [](RegistroNoContributiva& c) {
         c.NumMiembros = 2;
         c.Convive = 1;
         c.RGlobal = 17183.02;
     },
     false,
     kResidencia + "Se multiplica por 2.5 el límite máximo al convivir con hijos o padres.\r\n"
                   "La renta global de la unidad familiar rebasa el límite de ingresos de \r\n"
                   "la unidad económica que es de 17.183,01 €.\r\n"
                   "POR TANTO, NO TIENE DERECHO A PENSION"},
    {"an income equal to the limit passes, and the pension is eaten whole", 65,
     [](RegistroNoContributiva& c) {
         c.NumMiembros = 2;
         c.Convive = 1;
         c.RGlobal = 17183.01;
     },
     true,
     kResidencia +
         "Se multiplica por 2.5 el límite máximo al convivir con hijos o padres.\r\n"
         "La pensión bruta es de 4.043,06 €.\r\n"
         "La renta global, sumadas las pensiones no contributivas, supera el límite de 17.183,01 €.\r\n"
         "por lo que la pensión a percibir se reduce a 0,00 € anuales,\r\n"
         "repartidas en 14 pagas de 0,00 €.\r\n"},
    {"two and two without income: 6873.202 passes the rounded 6873.20", 65,
     [](RegistroNoContributiva& c) { c.NumMiembros = c.NumBenef = 2; }, true,
     kResidencia +
         "La pensión bruta es de 3.436,60 €.\r\n"
         "La renta global, sumadas las pensiones no contributivas, supera el límite de 6.873,20 €.\r\n"
         "por lo que la pensión a percibir se reduce a 3.436,60 € anuales,\r\n"
         "repartidas en 14 pagas de 245,47 €.\r\n"},
    {"4043.06 - 3032.30 = 1010.76 rises to the minimum 1010.765, shown 1.010,77", 65,
     [](RegistroNoContributiva& c) { c.Renta = c.RenBene = c.RGlobal = 3032.30; }, true,
     kResidencia + "La pensión a percibir será de 1.010,77 € anuales.\r\n"
                   "repartidas en 14 pagas de 72,20 €.\r\n"},
    {"an own income above the pension", 65, [](RegistroNoContributiva& c) { c.Renta = 4100; }, false,
     kResidencia +
         "La pensión que le corresponde es nula porque la renta anual del beneficiario supera la de la "
         "pensión\r\n"
         "máxima a cobrar, que es de 4043,06 €.\r\n"
         "POR TANTO, NO TIENE DERECHO A PENSION"},
    {"reduced below zero: 43.06 - 4043.06, and the right stays", 65,
     [](RegistroNoContributiva& c) {
         c.NumMiembros = 2;
         c.Renta = 4000;
         c.RGlobal = 6873.20;
     },
     true,
     kResidencia +
         "La pensión bruta es de 43,06 €.\r\n"
         "La renta global, sumadas las pensiones no contributivas, supera el límite de 6.873,20 €.\r\n"
         "por lo que la pensión a percibir se reduce a -4.000,00 € anuales,\r\n"
         "repartidas en 14 pagas de -285,71 €.\r\n"},
};

TEST(CalculaNoContributiva, TellsTheWholeStoryOfEachCase) {
    for (const Supuesto& s : kSupuestos) {
        SCOPED_TRACE(s.historia);
        RegistroNoContributiva caso = solo(s.edad);
        s.prepara(caso);
        Dictamen dictamen;
        CalculaNoContributiva(caso, kHoy, dictamen);
        EXPECT_EQ(dictamen.ConDerecho, s.derecho);
        EXPECT_EQ(dictamen.Conclusion(), primeraLinea(s.edad) + s.conclusion);
    }
}

TEST(CalculaNoContributiva, WithoutBeneficiariesThereIsNothingToShare) {
    RegistroNoContributiva caso = solo(65);
    caso.NumBenef = 0;
    Dictamen dictamen;
    EXPECT_THROW(CalculaNoContributiva(caso, kHoy, dictamen), DivisionPorCero);
    EXPECT_EQ(dictamen.Conclusion(), primeraLinea(65) + kResidencia);
}

}  // namespace
}  // namespace orvemo::nocontributiva
