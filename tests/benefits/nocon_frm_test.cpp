#include "benefits/nocontributiva/nocon_frm.h"

#include "apoyo/pantalla_abierta.h"

namespace orvemo {
namespace {

using testing::ElementsAre;

class NoConFrmTest : public pruebas::PantallaAbierta<NoConFrm> {};

TEST_F(NoConFrmTest, OpensOnSomeoneWhoIsSixtyFiveToday) {
    EXPECT_THAT(limites(), ElementsAre("Estancia 0 y 99", "NumMiembros 0 y 99", "NumBenef 0 y 99",
                                       "Renta 0 y 99999999", "RenBene 0 y 99999999", "RGlobal 0 y 99999999"));
    EXPECT_EQ(frm.FechaNac.texto(), "15-06-1940");
    EXPECT_EQ(frm.Estancia.texto(), "10");
    EXPECT_THAT(
        cabecera(),
        ElementsAre("JUBILACIÓN E INVALIDEZ NO CONTRIBUTIVAS", "Jubilación e invalidez no contributivas",
                    "nocont.nom", "Datos del solicitante", "CONCLUSIONES SOBRE LA PENSIÓN NO CONTRIBUTIVA"));
    EXPECT_EQ(frm.textoConclusion(),
              "El interesado desea solicitar una pensión no contributiva a los 65 años.\r\n"
              "Debe haber residido legalmente en España los 2 años inmediatamente\r\n"
              "anteriores a la solicitud\r\n"
              "La pensión a percibir será de 4.043,06 € anuales.\r\n"
              "repartidas en 14 pagas de 288,79 €.\r\n");
    EXPECT_TRUE(frm.Ok.visible());
}

TEST_F(NoConFrmTest, ABlankIncomeStopsTheCalculationAndIsNotSaved) {
    rellena(frm.Renta, "");
    EXPECT_EQ(concluye(), "");
    EXPECT_TRUE(frm.Mal.visible());
    ASSERT_EQ(mundo.mensajes.dichos.size(), 1U);
    EXPECT_THAT(mundo.mensajes.dichos[0],
                testing::StartsWith("Error: No se ha podido completar la operación: "));
    mundo.mensajes.dichos.clear();
    EXPECT_EQ(graba("Sin renta"), "");
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: Algún dato no es correcto. Revise el supuesto"));
}

TEST_F(NoConFrmTest, ACaseLiesInTheFileByteByByteAndComesBack) {
    rellena({{&frm.Nombre, "Ana"}, {&frm.FechaNac, "01-01-1900"}, {&frm.Estancia, "11"}});
    rellena({{&frm.NumMiembros, "4"}, {&frm.NumBenef, "2"}});
    rellena({{&frm.Renta, "1234,5"}, {&frm.RenBene, "2000"}, {&frm.RGlobal, "3000,25"}});
    frm.marca(frm.Minusvalia, true);
    const std::string bytes = vaYVuelve("Cuatro");  // plain number texts, not a pattern
    ASSERT_EQ(bytes.size(), 307U);
    EXPECT_THAT(pruebas::enterosEn(bytes, {169, 173, 177}), ElementsAre(11, 4, 2));
    EXPECT_THAT(pruebas::doblesEn(bytes, {161, 181, 189, 197}), ElementsAre(2, 1234.5, 2000, 3000.25));
    EXPECT_EQ(bytes.substr(205, 2), std::string("\0\1", 2)) << "lives alone, disabled";
}

TEST_F(NoConFrmTest, PrintsNeitherBirthNorDisability) {
    rellena(frm.Nombre, "Ana");
    rellena(frm.Renta, "1234,5");
    frm.marca(frm.Convive, true);
    frm.marca(frm.Minusvalia, true);
    EXPECT_THAT(
        imprime(),
        ElementsAre("PENSIONES NO CONTRIBUTIVAS", "Nombre:Ana", "Estancia en España (años): 10",
                    "Número de miembros de la unidad familiar: 1",
                    "Número de beneficiarios de pensiones no contributivas: 1",
                    "Convive con abuelos, hijos, etc.", "Renta ANUAL del que solicita la pensión 1.234,50 €",
                    "Renta ANUAL del conjunto de Beneficiarios (incluido este) 0,00 €",
                    "Renta GLOBAL ANUAL de la unidad familiar 0,00 €", "CONCLUSIONES"));
}

TEST_F(NoConFrmTest, TheFirstRecordIsAnExample) {
    graba("Uno");
    vista.alGrabar = [](GrabaSupuesto& dialogo) {
        dialogo.selecciona(0);
        dialogo.BotonBorrar();
        dialogo.BotonCancelar();
    };
    ASSERT_TRUE(frm.pulsa(frm.BotonGraba));
    EXPECT_THAT(
        mundo.mensajes.dichos,
        ElementsAre("Error: No pueden borrarse ni  sobreescribirse los supuestos entregados como ejemplo"));
}

}  // namespace
}  // namespace orvemo
