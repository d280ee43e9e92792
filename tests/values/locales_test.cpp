// A windowing toolkit gives the process the machine's locale, and with it another decimal mark to the C
// library. No figure may change with it.

#include <gtest/gtest.h>

#include <clocale>
#include <string>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/teclas.h"

namespace orvemo {
namespace {

class ConLocale : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        if (std::setlocale(LC_ALL, GetParam()) == nullptr) GTEST_SKIP() << GetParam() << " is not installed";
    }
    void TearDown() override { std::setlocale(LC_ALL, anterior_.c_str()); }

  private:
    const std::string anterior_ = std::setlocale(LC_ALL, nullptr);
};

TEST_P(ConLocale, FiguresAndDatesStayTheSame) {
    EXPECT_EQ(12.5, LeeNumero("12.5"));
    EXPECT_EQ(12, LeeNumero("12,5"));
    EXPECT_EQ(1679.1, ValComa("1679,10"));
    EXPECT_EQ(1679.1, LeeNumeroRegional("1.679,10"));
    EXPECT_EQ(1234567.875, LimiteDe("1234567,89"));
    EXPECT_EQ("1.010,77", FormatoNumero(1010.765, "##,###,##0.00"));
    EXPECT_EQ("1010,765", TextoPlano(1010.765));
    EXPECT_EQ("05-sep-2004", FormatoFecha(FechaDe("5/9/04"), "dd-mmm-yyyy"));
    EXPECT_EQ(U'Ñ', TeclaMayuscula(U'ñ'));
}

INSTANTIATE_TEST_SUITE_P(Locales, ConLocale, testing::Values("C", "en_US.UTF-8", "es_ES.UTF-8"),
                         [](const auto& caso) { return std::string{caso.param}.substr(0, 2); });

}  // namespace
}  // namespace orvemo
