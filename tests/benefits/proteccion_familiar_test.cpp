#include "benefits/familiar/proteccion_familiar.h"

#include <gtest/gtest.h>

#include <string>

namespace orvemo::familiar {
namespace {

const std::string kHijoACargo = "El interesado/a desea solicitar una prestación por hijo a cargo.\r\n";
const std::string kNacimiento =
    "El interesado/a puede solicitar una prestación por nacimiento de hijo(s).\r\n";
const std::string kPartoMultiple =
    "Al ser parto múltiple, tiene derecho a una prestación sin condiciones sobre rentas.\r\n";

struct Supuesto {
    const char* historia;
    RegistroFamiliar caso;
    bool derecho;
    std::string conclusion;
};

RegistroFamiliar aCargo(int hijos, int mayores75, int mayores65, int menores33, double ingresos) {
    RegistroFamiliar caso;
    caso.Hijos = hijos;
    caso.HMin1 = mayores75;
    caso.HMin2 = mayores65;
    caso.HMin3 = menores33;
    caso.Ingresos = ingresos;
    return caso;
}

RegistroFamiliar parto(int hijosParto, int totalHijos, double ingresos) {
    RegistroFamiliar caso;
    caso.Ayuda = 1;
    caso.HijosParto = hijosParto;
    caso.TotalHijos = totalHijos;
    caso.Ingresos2 = ingresos;
    return caso;
}

void comprueba(const Supuesto& s) {
    SCOPED_TRACE(s.historia);
    Dictamen dictamen;
    CalculaProteccionFamiliar(s.caso, dictamen);
    EXPECT_EQ(dictamen.ConDerecho, s.derecho);
    EXPECT_EQ(dictamen.Conclusion(), s.conclusion);
}

TEST(CalculaProteccionFamiliar, DependentChildrenAlwaysEndWell) {
    const Supuesto supuestos[] = {
        {"no children at all: the first line alone", aCargo(0, 0, 0, 0, 0), true, kHijoACargo},
        {"one child, at the ceiling", aCargo(1, 0, 0, 0, 8793.03), true,
         kHijoACargo + "El importe mensual es de: 24,25 € por hijo no minusválido, equivalentes\r\n"
                       "a  291,00 € por hijo al año.\r\n"
                       "La asignación total es de 291,00 € anuales\r\n"},
        {"one child, 9000: 291 + 8793.03 - 9000 = 84.03", aCargo(1, 0, 0, 0, 9000), true,
         kHijoACargo + "El importe mensual es de: 7,00 € por hijo no minusválido, equivalentes\r\n"
                       "a  84,03 € por hijo al año.\r\n"
                       "La asignación total es de 84,03 € anuales\r\n"},
        {"one child, 9080: 4.03 is below what is paid at all", aCargo(1, 0, 0, 0, 9080), true,
         kHijoACargo + "La prestación por los hijos no minusválidos es inferior al límite de "
                       "24,25 € por hijo y año.\r\n"
                       "No corresponde prestación por los hijos no minusválidos.\r\n"},
        {"two children: ceiling 10111.9845, 582 + L - 10500 = 193.9845 between two",
         aCargo(2, 0, 0, 0, 10500), true,
         kHijoACargo + "El importe mensual es de: 8,08 € por hijo no minusválido, equivalentes\r\n"
                       "a  96,99 € por hijo al año.\r\n"
                       "La asignación total es de 193,98 € anuales\r\n"},
        {"three in all make a large family: ceiling 14990.94", aCargo(1, 1, 0, 1, 14990.94), true,
         kHijoACargo + "El importe mensual es de: 24,25 € por hijo no minusválido, equivalentes\r\n"
                       "a  291,00 € por hijo al año.\r\n"
                       "La asignación por cada hijo minusválido >75% es de 5141,52 € anuales.\r\n"
                       "La asignación por cada hijo minusválido >33% es de 581,66 € anuales.\r\n"
                       "La asignación total es de 6.014,18 € anuales\r\n"},
        {"only disabled children: no income test", aCargo(0, 0, 2, 0, 1e6), true,
         kHijoACargo + "La asignación por cada hijo minusválido >65% es de 3427,68 € anuales.\r\n"
                       "La asignación total es de 6.855,36 € anuales\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

TEST(CalculaProteccionFamiliar, ABirthPaysFromTheThirdChildOrByItsNumber) {
    const Supuesto supuestos[] = {
        {"the third child", parto(1, 3, 14990.94), true,
         kNacimiento + "Cumple la condición sobre rentas de la unidad familiar.\r\n"
                       "La prestación económica consistirá en un pago único de 450,76 € por hijo,\r\n"
                       "a partir del tercer nacimiento, es decir 450,76 €.\r\n"},
        {"the first child", parto(1, 1, 0), false,
         kNacimiento + "No tiene derecho a la prestación por tratarse del primer o segundo hijo.\r\n"},
        {"twins, the first two: nothing for the order, 2052 for the number", parto(2, 2, 0), true,
         kNacimiento + "No tiene derecho a la prestación por tratarse del primer o segundo hijo.\r\n" +
             kPartoMultiple + "Esta prestación económica consistirá en un pago único de 2.052,00 €\r\n"},
        {"triplets after two: the income section is silent", parto(3, 5, 1e6), true,
         kPartoMultiple + "Esta prestación económica consistirá en un pago único de 4.104,00 €\r\n"},
        {"quadruplets", parto(4, 6, 0), true,
         kPartoMultiple + "Esta prestación económica consistirá en un pago único de 6.156,00 €\r\n"},
        {"14990.94 + 450.76 - 15000 = 441.70: the difference", parto(1, 3, 15000), true,
         kNacimiento +
             "Aunque superando los ingresos el límite anual de 14.990,94 € tiene derecho a \r\n"
             "una prestación de 442 € totales (441,70 €/Hijo)\r\n"
             "diferencia entre los ingresos anuales y el límite anual más el importe de la prestación por "
             "hijo\r\n"},
        {"too much: the ceiling told, 11430.94, is not the one tested", parto(1, 3, 15441.70), false,
         kNacimiento + "No tiene derecho a la prestación por ser las rentas de la unidad\r\n"
                       "familiar superiores al máximo anual de 11.430,94 €.\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

}  // namespace
}  // namespace orvemo::familiar
