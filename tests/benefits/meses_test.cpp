// The daily base of the three leave benefits, side by side, by the month in which the leave begins. A monthly
// base of 13,020 euros is 465 a day over 28 days, 434 over 30 and 420 over 31.
#include <gtest/gtest.h>

#include <string>

#include "benefits/incapacidad_temporal.h"
#include "benefits/maternidad.h"
#include "benefits/riesgo_embarazo.h"

namespace orvemo {
namespace {

constexpr double kBaseMensual = 13020;

/// What the conclusions say between the label of the base and the euro sign.
std::string baseEn(const Dictamen& dictamen) {
    const std::string rotulo = "Base Reguladora para la prestación:";
    const std::string& texto = dictamen.Conclusion();
    const auto desde = texto.find(rotulo) + rotulo.size();
    return texto.substr(desde, texto.find(" €", desde) - desde);
}

template <typename Registro>
Registro caso(int Situacion, int DM, Fecha f1) {
    Registro caso;
    caso.Situacion = Situacion;
    caso.DM = DM;
    caso.fAlta = FechaDMA(1, 12, 1999);
    caso.f1 = caso.f2 = f1;
    caso.Bccant = kBaseMensual;
    return caso;
}

std::string incapacidad(int Situacion, int DM, Fecha f1) {
    auto c = caso<incapacidad_temporal::RegistroIncapacidad>(Situacion, DM, f1);
    Dictamen dictamen;
    incapacidad_temporal::CalculaIncapacidad(c, {}, dictamen);
    return baseEn(dictamen);
}

std::string maternidad(int Situacion, int DM, Fecha f1) {
    Dictamen dictamen;
    maternidad::CalculaMaternidad(caso<maternidad::RegistroMaternidad>(Situacion, DM, f1), {}, dictamen);
    return baseEn(dictamen);
}

std::string riesgo(int Situacion, int DM, Fecha f1) {
    Dictamen dictamen;
    riesgo_embarazo::CalculaRiesgoEmbarazo(caso<riesgo_embarazo::RegistroRiesgo>(Situacion, DM, f1),
                                           dictamen);
    return baseEn(dictamen);
}

TEST(BaseDiaria, ByTheDayItGoesByTheMonthAndJanuaryAndAugustPartTheThree) {
    struct {
        const char* mes;
        const char *incapacidad, *maternidad, *riesgo;
    } const filas[] = {
        {"enero", "434,00", "420,00", "434,00"},      {"febrero", "420,00", "420,00", "420,00"},
        {"marzo", "465,00", "465,00", "465,00"},      {"abril", "420,00", "420,00", "420,00"},
        {"mayo", "434,00", "434,00", "434,00"},       {"junio", "420,00", "420,00", "420,00"},
        {"julio", "434,00", "434,00", "434,00"},      {"agosto", "434,00", "420,00", "434,00"},
        {"septiembre", "420,00", "420,00", "420,00"}, {"octubre", "434,00", "434,00", "434,00"},
        {"noviembre", "420,00", "420,00", "420,00"},  {"diciembre", "434,00", "434,00", "434,00"},
    };
    for (const int anio : {2004, 2005}) {  // a leap year is no different
        int mes = 0;
        for (const auto& fila : filas) {
            const Fecha f1 = FechaDMA(10, ++mes, anio);
            EXPECT_EQ(incapacidad(0, 0, f1), fila.incapacidad) << fila.mes << ' ' << anio;
            EXPECT_EQ(maternidad(0, 0, f1), fila.maternidad) << fila.mes << ' ' << anio;
            EXPECT_EQ(riesgo(0, 0, f1), fila.riesgo) << fila.mes << ' ' << anio;
        }
    }
}

TEST(BaseDiaria, ByTheMonthAndInSpecialSchemesItIsAThirtieth) {
    const Fecha marzo = FechaDMA(10, 3, 2005);
    for (const auto& [Situacion, DM] : {std::pair{0, 1}, {2, 0}, {3, 0}}) {
        EXPECT_EQ(incapacidad(Situacion, DM, marzo), "434,00") << Situacion;
        EXPECT_EQ(maternidad(Situacion, DM, marzo), "434,00") << Situacion;
        EXPECT_EQ(riesgo(Situacion, DM, marzo), "434,00") << Situacion;
    }
}

}  // namespace
}  // namespace orvemo
