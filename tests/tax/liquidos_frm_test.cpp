#include "tax/liquidos_frm.h"

#include <gmock/gmock.h>

#include "apoyo/entorno_falso.h"
#include "apoyo/vista_falsa.h"
#include "tax/personas.h"

namespace orvemo {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class LiquidosFrmTest : public testing::Test {
  protected:
    LiquidosFrmTest() { abre(); }

    void abre() {
        frm.Inicia();
        frm.foco(frm.AnioNacimiento);
        frm.escribe(frm.AnioNacimiento, "1965");
    }

    void escribe(Campo& campo, const char* texto) {
        ASSERT_TRUE(frm.foco(campo));
        frm.escribe(campo, texto);
    }

    std::vector<std::string> resultados() {
        return {frm.LiquidosBruto.texto(), frm.LiquidosAnual.texto(), frm.Ret.texto(), frm.iRet.texto(),
                frm.IRetAnual.texto(),     frm.iSS.texto(),           frm.iLiq.texto()};
    }

    pruebas::EntornoFalso mundo;
    LiquidosFrm frm{mundo.entorno};
};

TEST_F(LiquidosFrmTest, ElCasoDelManualYLaCurvaASuAlrededor) {
    EXPECT_EQ(frm.LiquidosLiquido.texto(), "915,00");
    EXPECT_EQ(frm.LiquidosExtra.texto(), "2");
    escribe(frm.LiquidosLiquido, "1000");
    ASSERT_TRUE(frm.pulsa(frm.BotonCalcular));
    EXPECT_EQ(frm.PantallaActual(), 1);
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE EL SALARIO:");
    EXPECT_THAT(resultados(),
                ElementsAre("1.274,67", "17.845,38", "14", "180,24", "2.523,34", "94,43", "1.000,00"));

    // Half the pay: 3.67% and a base held at 836.10; half as much again: 18.45%.
    const Grafica& curva = frm.Curva.grafica();
    EXPECT_TRUE(std::ranges::is_sorted(curva.puntos, {}, &PuntoGrafica::x));
    EXPECT_NEAR(curva.marcado->x, 1274.67, 0.01);
    EXPECT_NEAR(curva.marcado->y, 1000, 0.01);
    EXPECT_EQ(curva.descripcion,
              "Salario líquido según el bruto: de 562,38 € con 637,34 € brutos a 1.417,59 € con 1.912,01 €; "
              "marcado, 1.000,00 € con 1.274,67 €.");

    ASSERT_TRUE(frm.pulsa(frm.Anterior));
    LiquidosFrm otra{mundo.entorno};
    otra.Inicia();
    EXPECT_EQ(otra.LiquidosLiquido.texto(), "1000,00");
}

TEST_F(LiquidosFrmTest, ElLiquidoSeReescribeAlDejarlo) {
    escribe(frm.LiquidosLiquido, "1000,555");
    frm.foco(frm.LiquidosExtra);
    EXPECT_EQ(frm.LiquidosLiquido.texto(), "1000,56");
}

TEST_F(LiquidosFrmTest, LoQueNoSePuedeCalcularSeDiceYLaPantallaSigue) {
    escribe(frm.LiquidosExtra, "244");
    frm.pulsa(frm.BotonCalcular);
    escribe(frm.LiquidosExtra, "2");
    escribe(frm.LiquidosLiquido, "99999999999");
    frm.pulsa(frm.BotonCalcular);
    EXPECT_THAT(mundo.mensajes.dichos, SizeIs(2));
    EXPECT_EQ(frm.PantallaActual(), 0);
    EXPECT_EQ(mundo.valores.LiquidoAnterior, 915);
}

}  // namespace
}  // namespace orvemo
