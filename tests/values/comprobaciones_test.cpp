#include "foundations/values/comprobaciones.h"

#include <gtest/gtest.h>

#include <vector>

#include "apoyo/mensajes_falsos.h"

namespace orvemo {
namespace {

using Dichos = std::vector<std::string>;

constexpr const char* kFechaMala = "Error: La fecha no es correcta. Debe ser de tipo dd-mm-aaaa";

class CampoFalso final : public ControlTexto {
  public:
    explicit CampoFalso(std::string texto) : texto_{std::move(texto)} {}
    [[nodiscard]] const std::string& texto() const override { return texto_; }
    void ponTexto(std::string texto) override { texto_ = std::move(texto); }
    void pideFoco() override { ++focos; }

    int focos = 0;

  private:
    std::string texto_;
};

class Comprobaciones : public testing::Test {
  protected:
    pruebas::MensajesFalsos mensajes;
    pruebas::RelojFijo reloj{FechaDMA(9, 5, 2005)};
    bool DatoMal = false;
};

TEST_F(Comprobaciones, ABadDateIsToldAndTodayTakesItsPlace) {
    for (const char* texto : {"", "31-02-2005", "ayer"}) {
        CampoFalso campo{texto};
        DatoMal = false;
        mensajes.dichos.clear();
        CompruebaFecha(campo, DatoMal, mensajes, reloj);
        EXPECT_EQ("09-05-2005", campo.texto()) << texto;
        EXPECT_TRUE(DatoMal) << texto;
        EXPECT_EQ(1, campo.focos) << texto;
        EXPECT_EQ(Dichos{kFechaMala}, mensajes.dichos) << texto;
    }
}

TEST_F(Comprobaciones, NothingIsCheckedWhileTheFocusIsTakenBack) {
    CampoFalso campo{"ayer"};
    DatoMal = true;
    CompruebaFecha(campo, DatoMal, mensajes, reloj);
    CompruebaRango(campo, "1", "99", DatoMal, mensajes);
    EXPECT_EQ("ayer", campo.texto());
    EXPECT_TRUE(DatoMal);
    EXPECT_EQ(0, campo.focos);
    EXPECT_EQ(Dichos{}, mensajes.dichos);
}

TEST_F(Comprobaciones, ARangeIsJudgedOnTheNumberBeforeItsComma) {
    struct {
        const char* titulo;
        const char* texto;
        const char* minimo;
        const char* maximo;
        bool correcto;
    } const casos[] = {
        {"within", "38", "1", "99", true},
        {"the lower end", "1", "1", "99", true},
        {"the upper end", "99", "1", "99", true},
        {"below", "0", "1", "99", false},
        {"above", "100", "1", "99", false},
        {"0,5 is judged as 0", "0,5", "1", "5", false},
        {"2,9 is judged as 2", "2,9", "2,5", "5", false},
        {"12,5 is judged as 12", "12,5", "1", "12", true},
        {"blank is 0", "", "1", "5", false},
        {"blank limits are 0", "0", "", "", true},
        {"a number too large for a double", "1e999", "0", "9", false},
        {"a limit narrowed to single precision", "1234567.88", "0", "1234567,89", false},
    };
    for (const auto& caso : casos) {
        CampoFalso campo{caso.texto};
        DatoMal = false;
        mensajes.dichos.clear();
        CompruebaRango(campo, caso.minimo, caso.maximo, DatoMal, mensajes);
        EXPECT_EQ(!caso.correcto, DatoMal) << caso.titulo;
        EXPECT_EQ(caso.correcto ? 0 : 1, campo.focos) << caso.titulo;
        EXPECT_EQ(caso.texto, campo.texto()) << caso.titulo;
        EXPECT_EQ(caso.correcto ? 0U : 1U, mensajes.dichos.size()) << caso.titulo;
    }
}

TEST_F(Comprobaciones, TheLimitsAreToldAsGiven) {
    CampoFalso campo{"1"};
    CompruebaRango(campo, "2,50", "007", DatoMal, mensajes);
    EXPECT_EQ(Dichos{"Error: El número no es correcto. Debe introducir un número entre 2,50 y 007"},
              mensajes.dichos);
}

}  // namespace
}  // namespace orvemo
