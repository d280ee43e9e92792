#include "benefits/nocontributiva/nocontributiva.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"

namespace orvemo::nocontributiva {
namespace {

const Fecha kHoy = FechaDMA(15, 6, 2005);

using Caso = RegistroNoContributiva;

/// Someone of that age today, who lives alone without income.
Caso sano(int edad, int Estancia = 10) {
    Caso caso;
    caso.FechaNac = SumaFecha(Intervalo::Anio, -edad, kHoy);
    caso.Estancia = Estancia;
    caso.NumMiembros = caso.NumBenef = 1;
    return caso;
}

Caso minusvalido(int edad, int Estancia = 10) {
    Caso caso = sano(edad, Estancia);
    caso.Minusvalia = 1;
    return caso;
}

/// Someone of 65 in a family of so many, one of them with the pension, and what they and all of them earn.
Caso enFamilia(int NumMiembros, double Renta, double RGlobal) {
    Caso caso = sano(65);
    caso.NumMiembros = NumMiembros;
    caso.Renta = Renta;
    caso.RGlobal = RGlobal;
    return caso;
}

Caso conHijos(Caso caso) {
    caso.Convive = 1;
    return caso;
}

Caso conBeneficiarios(Caso caso, int NumBenef, double RenBene) {
    caso.NumBenef = NumBenef;
    caso.RenBene = RenBene;
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

const std::string kMultiplica = "Se multiplica por 2.5 el límite máximo al convivir con hijos o padres.\r\n";

std::string reducida(const char* bruta, const char* limite, const char* neta, const char* paga) {
    return std::string{"La pensión bruta es de "} + bruta +
           " €.\r\nLa renta global, sumadas las pensiones no contributivas, supera el límite de " + limite +
           " €.\r\npor lo que la pensión a percibir se reduce a " + neta +
           " € anuales,\r\nrepartidas en 14 pagas de " + paga + " €.\r\n";
}

const struct {
    const char* historia;
    int edad;
    Caso caso;
    bool derecho;
    std::string conclusion;  // after the first line
} kSupuestos[] = {
    {"65 today, alone: the whole pension, 4043.06 in 14", 65, sano(65), true, kResidencia + kEntera},
    {"64: too young", 64, sano(64), false,
     "No tiene la edad mínima de 65 años para optar la pensión no contributiva.\r\n"
     "NO TIENE DERECHO A PENSIÓN\r\n"},
    {"disabled at 19, five years of residence", 19, minusvalido(19, 5), true,
     kCumpleEdad + kResidencia + kEntera},
    {"disabled at 17", 17, minusvalido(17), false,
     "Debe ser mayor de 18 años para optar a la pensión por incapacidad > 65%\r\n"
     "NO TIENE DERECHO A PENSIÓN\r\n"},
    {"disabled at exactly 18 is told the message of the 65", 18, minusvalido(18), false,
     "No tiene la edad mínima de 65 años para optar la pensión no contributiva.\r\n"
     "NO TIENE DERECHO A PENSIÓN\r\n"},
    {"disabled at 65 needs ten years like anybody", 65, minusvalido(65, 9), false,
     "No lleva viviendo en España el mínimo de 10 años establecido\r\n"
     "como requisito.\r\nNO PUEDE RECIBIR PENSION."},
    {"disabled at 64 needs five", 64, minusvalido(64, 4), false,
     kCumpleEdad + "No lleva viviendo en España el mínimo de 5 años establecido\r\n"
                   "como requisito para personas con incapacidad.\r\nNO PUEDE RECIBIR PENSION."},
    {"living with parents but counted alone: no multiplier", 65, conHijos(sano(65)), true,
     kResidencia + kEntera},
    {"2.5 x (4043.06 + 2830.142) = 17183.005, rounded 17183.01: a cent above is too much", 65,
     conHijos(enFamilia(2, 0, 17183.02)), false,
     kResidencia + kMultiplica +
         "La renta global de la unidad familiar rebasa el límite de ingresos de \r\n"
         "la unidad económica que es de 17.183,01 €.\r\nPOR TANTO, NO TIENE DERECHO A PENSION"},
    {"an income equal to the limit passes, and the pension is eaten whole", 65,
     conHijos(enFamilia(2, 0, 17183.01)), true,
     kResidencia + kMultiplica + reducida("4.043,06", "17.183,01", "0,00", "0,00")},
    {"two and two without income: 6873.202 passes the rounded 6873.20", 65,
     conBeneficiarios(enFamilia(2, 0, 0), 2, 0), true,
     kResidencia + reducida("3.436,60", "6.873,20", "3.436,60", "245,47")},
    {"4043.06 - 3032.30 = 1010.76 rises to the minimum 1010.765, shown 1.010,77", 65,
     conBeneficiarios(enFamilia(1, 3032.30, 3032.30), 1, 3032.30), true,
     kResidencia + "La pensión a percibir será de 1.010,77 € anuales.\r\n"
                   "repartidas en 14 pagas de 72,20 €.\r\n"},
    {"an own income above the pension", 65, enFamilia(1, 4100, 0), false,
     kResidencia +
         "La pensión que le corresponde es nula porque la renta anual del beneficiario supera la de la "
         "pensión\r\nmáxima a cobrar, que es de 4043,06 €.\r\nPOR TANTO, NO TIENE DERECHO A PENSION"},
    {"reduced below zero: 43.06 - 4043.06, and the right stays", 65, enFamilia(2, 4000, 6873.20), true,
     kResidencia + reducida("43,06", "6.873,20", "-4.000,00", "-285,71")},
};

TEST(CalculaNoContributiva, TellsTheWholeStoryOfEachCase) {
    for (const auto& s : kSupuestos) {
        SCOPED_TRACE(s.historia);
        Dictamen dictamen;
        CalculaNoContributiva(s.caso, kHoy, dictamen);
        EXPECT_EQ(dictamen.ConDerecho, s.derecho);
        EXPECT_EQ(dictamen.Conclusion(), primeraLinea(s.edad) + s.conclusion);
    }
}

TEST(CalculaNoContributiva, WithoutBeneficiariesThereIsNothingToShare) {
    Dictamen dictamen;
    EXPECT_THROW(CalculaNoContributiva(conBeneficiarios(sano(65), 0, 0), kHoy, dictamen), DivisionPorCero);
    EXPECT_EQ(dictamen.Conclusion(), primeraLinea(65) + kResidencia);
}

}  // namespace
}  // namespace orvemo::nocontributiva
