#include "pensions/incapacidad/incapacidad.h"

#include <gtest/gtest.h>

#include "foundations/values/fallos.h"
#include "pensions/casos_jubilacion.h"
#include "pensions/incapacidad/incapacidad_base.h"

namespace orvemo::incapacidad {
namespace {

/// A person of the general scheme, in alta, who contributed since 1990 and whom a common illness leaves unfit
/// for their trade on 15-06-2005.
RegistroIncapacidad enfermo(const char* nacimiento = "15-06-1955") {
    RegistroIncapacidad caso;
    caso.InvaFechaNac = LeeFecha(nacimiento);
    caso.InvaFechaInv = LeeFecha("15-06-2005");
    caso.InvaAltaSS = 1;
    caso.InvaInvalidez = 1;
    caso.InvaCausa = 2;
    caso.InvaPerDesde[0].asigna("01-01-1990");
    caso.InvaPerHasta[0].asigna("31-05-2005");
    return caso;
}

TEST(Incapacidad, AnAverageOverNoMonthsIsADivisionByZero) {
    Dictamen dictamen;
    EXPECT_THROW(InvaCalcula(enfermo("15-03-1989"), pruebas::tablasPlanas(100), dictamen), DivisionPorCero);
    EXPECT_TRUE(dictamen.Conclusion().ends_with("el periodo mínimo de 0 meses establecido.\r\n"));
}

TEST(BaseDeIncapacidad, CountsBackFromTheLastContributionOfTheGeneralScheme) {
    const Fecha dictamen = LeeFecha("15-06-2005");
    const auto desde = [&](Regimen regimen, const std::string& ultimo) {
        return FechaReferencia(regimen, dictamen, std::vector<std::string>{"01-02-1999", ultimo, ""});
    };
    EXPECT_EQ(desde(Regimen::General, "31-05-2005"), LeeFecha("31-05-2005")) << "and not the day after";
    EXPECT_EQ(desde(Regimen::General, "17-03-2005"), LeeFecha("17-03-2005")) << "90 days";
    EXPECT_EQ(desde(Regimen::General, "16-03-2005"), dictamen) << "91 days";
    EXPECT_EQ(desde(Regimen::Agrario, "31-05-2005"), dictamen);
}

TEST(BaseDeIncapacidad, AsksForTheMonthsThatTheDaysMake) {
    const auto meses = [](const RegistroIncapacidad& caso) { return InvaMinimoBases(Expediente{caso}); };
    EXPECT_EQ(meses(enfermo()), 91) << "2739 days over 30, though the calculation averages 90";
    EXPECT_EQ(meses(enfermo("15-06-1980")), 54) << "at 25";
    EXPECT_EQ(meses(enfermo("15-06-1979")), 60) << "at 26, five years at least";
    RegistroIncapacidad otro = enfermo();
    otro.InvaAltaSS = 0;
    EXPECT_EQ(meses(otro), 96) << "180, of which 96 count";
    otro.InvaCausa = 1;
    EXPECT_EQ(meses(otro), 0) << "an accident";
}

}  // namespace
}  // namespace orvemo::incapacidad
