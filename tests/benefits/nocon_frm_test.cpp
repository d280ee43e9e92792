#include "benefits/nocon_frm.h"

#include "pantalla_de_baja.h"

namespace orvemo {
namespace {

using testing::ElementsAre;

class NoConFrmTest : public pruebas::PantallaDeBaja<NoConFrm> {};

TEST_F(NoConFrmTest, OpensOnSomeoneWhoIsSixtyFiveToday) {
    EXPECT_EQ(frm.Titulo(), "JUBILACIÓN E INVALIDEZ NO CONTRIBUTIVAS");
    EXPECT_EQ(frm.FechaNac.texto(), "15-06-1940");
    EXPECT_EQ(frm.Estancia.texto(), "10");
    EXPECT_EQ(concluye(),
              "El interesado desea solicitar una pensión no contributiva a los 65 años.\r\n"
              "Debe haber residido legalmente en España los 2 años inmediatamente\r\n"
              "anteriores a la solicitud\r\n"
              "La pensión a percibir será de 4.043,06 € anuales.\r\n"
              "repartidas en 14 pagas de 288,79 €.\r\n");
    EXPECT_TRUE(frm.Ok.visible());
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE LA PENSIÓN NO CONTRIBUTIVA");
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
    rellena(frm.Nombre, "Ana");
    rellena(frm.FechaNac, "01-01-1900");
    rellena(frm.Estancia, "11");
    rellena(frm.NumMiembros, "4");
    rellena(frm.NumBenef, "2");
    rellena(frm.Renta, "1234,5");
    rellena(frm.RenBene, "2000");
    rellena(frm.RGlobal, "3000,25");
    frm.marca(frm.Minusvalia, true);
    const std::string bytes = graba("Cuatro");
    ASSERT_EQ(bytes.size(), 307U);
    EXPECT_EQ(pruebas::dobleEn(bytes, 161), 2);
    EXPECT_EQ(pruebas::enteroEn(bytes, 169), 11);
    EXPECT_EQ(pruebas::enteroEn(bytes, 173), 4);
    EXPECT_EQ(pruebas::enteroEn(bytes, 177), 2);
    EXPECT_EQ(pruebas::dobleEn(bytes, 181), 1234.5);
    EXPECT_EQ(pruebas::dobleEn(bytes, 189), 2000);
    EXPECT_EQ(pruebas::dobleEn(bytes, 197), 3000.25);
    EXPECT_EQ(bytes[205], 0);
    EXPECT_EQ(bytes[206], 1);
    frm.pulsa(frm.BotonNuevo);
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(frm.Renta.texto(), "1234,5") << "plain number text, not a pattern";
    EXPECT_EQ(frm.FechaNac.texto(), "01-01-1900");
    EXPECT_TRUE(frm.Minusvalia.marcado());
    EXPECT_FALSE(frm.Convive.marcado());
}

TEST_F(NoConFrmTest, PrintsNeitherBirthNorDisability) {
    rellena(frm.Nombre, "Ana");
    rellena(frm.Renta, "1234,5");
    frm.marca(frm.Convive, true);
    frm.marca(frm.Minusvalia, true);
    ASSERT_TRUE(frm.pulsa(frm.BotonPrint));
    EXPECT_THAT(
        mundo.impresora.lineas,
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
