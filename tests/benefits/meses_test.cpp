// The daily base of the three leave benefits, side by side, by the month in which the leave begins. A monthly
// base of 13,020 euros is 465 a day over 28 days, 434 over 30 and 420 over 31.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "benefits/it/incapacidad_temporal.h"
#include "benefits/maternidad/maternidad.h"
#include "benefits/riesgo/riesgo_embarazo.h"

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

/// Of the temporary incapacity, the maternity and the pregnancy risk.
std::array<std::string, 3> bases(int Situacion, int DM, Fecha f1) {
    Dictamen incapacidad, descanso, riesgo;
    auto baja = caso<incapacidad_temporal::RegistroIncapacidad>(Situacion, DM, f1);
    incapacidad_temporal::CalculaIncapacidad(baja, "", incapacidad);
    maternidad::CalculaMaternidad(caso<maternidad::RegistroMaternidad>(Situacion, DM, f1),
                                  maternidad::Jornada::Completa, descanso);
    riesgo_embarazo::CalculaRiesgoEmbarazo(caso<riesgo_embarazo::RegistroRiesgo>(Situacion, DM, f1), riesgo);
    return {baseEn(incapacidad), baseEn(descanso), baseEn(riesgo)};
}

TEST(BaseDiaria, ByTheDayItGoesByTheMonthAndJanuaryAndAugustPartTheThree) {
    // clang-format off
    const std::array filas{
        //         sick leave, maternity, risk
        std::array{"434,00", "420,00", "434,00"},  // January
        std::array{"420,00", "420,00", "420,00"},
        std::array{"465,00", "465,00", "465,00"},
        std::array{"420,00", "420,00", "420,00"},
        std::array{"434,00", "434,00", "434,00"},
        std::array{"420,00", "420,00", "420,00"},
        std::array{"434,00", "434,00", "434,00"},
        std::array{"434,00", "420,00", "434,00"},  // August
        std::array{"420,00", "420,00", "420,00"},
        std::array{"434,00", "434,00", "434,00"},
        std::array{"420,00", "420,00", "420,00"},
        std::array{"434,00", "434,00", "434,00"},
    };
    // clang-format on
    for (const int anio : {2004, 2005}) {  // a leap year is no different
        for (int mes = 1; mes <= 12; ++mes) {
            EXPECT_THAT(bases(0, 0, FechaDMA(10, mes, anio)),
                        testing::ElementsAreArray(filas[static_cast<std::size_t>(mes - 1)]))
                << mes << ' ' << anio;
        }
    }
}

TEST(BaseDiaria, ByTheMonthAndInSpecialSchemesItIsAThirtieth) {
    for (const auto& [Situacion, DM] : {std::pair{0, 1}, {2, 0}, {3, 0}}) {
        EXPECT_THAT(bases(Situacion, DM, FechaDMA(10, 3, 2005)), testing::Each("434,00")) << Situacion;
    }
}

}  // namespace
}  // namespace orvemo
