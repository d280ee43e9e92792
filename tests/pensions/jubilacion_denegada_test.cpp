#include "pensions/jubilacion.h"

#include <gtest/gtest.h>

#include <string>

#include "pensions/supuestos_jubilacion.h"

namespace orvemo::jubilacion {
namespace {

using namespace pruebas;

const std::string kNoCorrespondeAdelanto =
    "Al no reunir las condiciones mínimas para la jubilación anticipada (mínimo 61 \r\n"
    "años, jubilación por causa no imputable o por despido y más de 30 años cotizados)\r\n"
    "y no haber cotizado al SOVI, no corresponde adelanto en la edad de jubilación.\r\n";
const std::string kNoTieneDerecho = "\r\n*** NO TIENE DERECHO A PENSION ***\r\n";
const std::string kPruebeNoContributiva =
    "(Pruebe la opción de PENSIÓN NO CONTRIBUTIVA en el menú principal"
    " del programa, ya que tiene edad suficiente y a lo mejor cumple los"
    " demás requisitos sobre renta anual.)";

const SupuestoJubilacion kDenegados[] = {
    {"60 years, nothing before 1967: 65 is the age",
     [](RegistroJubilacion& c) { ponFechas(c, "15-06-1945", "15-06-2005"); }, false,
     "El interesado desea jubilarse a los 60 años.\r\n" + kNoCorrespondeAdelanto +
         "La edad mínima para la jubilación es de 65 años.\r\n" + kNoTieneDerecho},
    {"62 years and 36 contributed, but the person left of their own will",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1943", "15-06-2005");
         c.JubiVoluntario = 1;
     },
     false,
     "El interesado desea jubilarse a los 62 años.\r\n" + kNoCorrespondeAdelanto +
         "La edad mínima para la jubilación es de 65 años.\r\n" + kNoTieneDerecho},
    {"62 years and 30 contributed: more than 30 are asked for",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1943", "15-06-2005");
         ponPeriodo(c, 1, "01-06-1975", "31-05-2005");
     },
     false,
     "El interesado desea jubilarse a los 62 años.\r\n" + kNoCorrespondeAdelanto +
         "La edad mínima para la jubilación es de 65 años.\r\n" + kNoTieneDerecho},
    {"64 years, contributed before 1967, the last time 100 days ago: no longer 60 but 65",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1941", "15-06-2005");
         ponPeriodo(c, 1, "01-01-1965", "07-03-2005");
         c.JubiVoluntario = 1;
     },
     false,
     "El interesado desea jubilarse a los 64 años.\r\n"
     "Está en situación asimilada a baja.\r\n" +
         kNoCorrespondeAdelanto + "La edad mínima para la jubilación es de 65 años.\r\n" + kNoTieneDerecho},
    {"63 years and replaced by an unemployed person: 64 is the age",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1942", "15-06-2005");
         c.JubiRegimen = 4;
         c.JubiVoluntario = 1;
     },
     false,
     "El interesado desea jubilarse a los 63 años.\r\n" + kNoCorrespondeAdelanto +
         "La edad mínima para la jubilación es de 64 años.\r\n" + kNoTieneDerecho},
    {"59 years and a partial pension: the age of 60 stops it before its own test",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1946", "15-06-2005");
         c.JubiRegimen = 5;
     },
     false,
     "El interesado desea jubilarse a los 59 años.\r\n" + kNoCorrespondeAdelanto +
         "La edad mínima para la jubilación es de 60 años.\r\n" + kNoTieneDerecho},
    {"65 years and no period at all", [](RegistroJubilacion& c) { ponPeriodo(c, 1, "", ""); }, false,
     "El interesado desea jubilarse a los 65 años.\r\n"
     "Está en situación asimilada a baja.\r\n"
     "Ha cotizado durante 0 meses.\r\n"
     "Además,  en los 15 últimos años ha cotizado 0 meses.\r\n" +
         kPeriodosExigidos + "Luego NO CUMPLE el periodo mínimo de cotización exigido.\r\n" +
         kNoTieneDerecho + kPruebeNoContributiva},
    {"65 years, 10 contributed: the hint on the other pension",
     [](RegistroJubilacion& c) { ponPeriodo(c, 1, "01-06-1995", "31-05-2005"); }, false,
     "El interesado desea jubilarse a los 65 años.\r\n"
     "Ha cotizado durante 10 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 10 años.\r\n" +
         kPeriodosExigidos + "Luego NO CUMPLE el periodo mínimo de cotización exigido.\r\n" +
         kNoTieneDerecho + kPruebeNoContributiva},
    {"64 years, replaced, 10 contributed: below 65 there is no hint",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1941", "15-06-2005");
         ponPeriodo(c, 1, "01-06-1995", "31-05-2005");
         c.JubiRegimen = 4;
     },
     false,
     "El interesado desea jubilarse a los 64 años.\r\n"
     "Ha cotizado durante 10 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 10 años.\r\n" +
         kPeriodosExigidos + "Luego NO CUMPLE el periodo mínimo de cotización exigido.\r\n" +
         kNoTieneDerecho},
    {"65 years, seven of the old insurance (2556 days) and no more",
     [](RegistroJubilacion& c) {
         ponPeriodo(c, 1, "01-01-1960", "31-12-1966");
         c.JubiRegimen = 3;
     },
     false,
     "El interesado desea jubilarse a los 65 años.\r\n"
     "Ha cotizado durante 7 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 0 meses.\r\n" +
         kPeriodosExigidos + "Luego NO CUMPLE el periodo mínimo de cotización exigido.\r\n" +
         kNoTieneDerecho + "\r\nSin embargo, TIENE DERECHO A UNA PENSIÓN SOVI de 313,21 €/mes\r\n"},
    {"65 years, 25 contributed up to 1985: none of the last 15",
     [](RegistroJubilacion& c) {
         ponPeriodo(c, 1, "01-01-1960", "01-01-1985");
         c.JubiRegimen = 1;
     },
     false,
     "El interesado desea jubilarse a los 65 años.\r\n"
     "Ha cotizado durante 25 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 0 meses.\r\n" +
         kPeriodosExigidos +
         "Luego NO CUMPLE el periodo mínimo de 2 años de cotización dentro de los\r\n"
         "15 últimos años anteriores a la solicitud.\r\n" +
         kNoTieneDerecho + "\r\nSin embargo, TIENE DERECHO A UNA PENSIÓN SOVI de 313,21 €/mes\r\n"},
};

TEST(Jubilacion, RefusesWithItsReasons) {
    for (const SupuestoJubilacion& supuesto : kDenegados) comprueba(supuesto);
}

TEST(Jubilacion, NinetyDaysWithoutContributingAreNotYetABaja) {
    RegistroJubilacion caso = casoTipo();
    const auto hablaDeBaja = [&](const char* ultimoDia) {
        ponPeriodo(caso, 1, "01-01-1970", ultimoDia);
        return dictamenDe(caso).Conclusion().find("asimilada a baja") != std::string::npos;
    };
    EXPECT_FALSE(hablaDeBaja("17-03-2005")) << "90 days";
    EXPECT_TRUE(hablaDeBaja("16-03-2005")) << "91 days";
    caso.JubiRegimen = 2;
    EXPECT_FALSE(hablaDeBaja("16-03-2005")) << "only the general scheme asks";
}

}  // namespace
}  // namespace orvemo::jubilacion
