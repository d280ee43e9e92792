#include "benefits/familiar_frm.h"

#include "pantalla_de_baja.h"

namespace orvemo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FamiliarFrmTest : public pruebas::PantallaDeBaja<FamiliarFrm> {
  protected:
    void eligeNacimiento() { frm.elige(frm.Ayuda, 1); }
};

TEST_F(FamiliarFrmTest, TheListSaysWhichFieldsShow) {
    EXPECT_THAT(aLaVista({"Nombre", "Ayuda"}), ElementsAre("Hijos", "HMin1", "HMin2", "HMin3", "Ingresos"));
    eligeNacimiento();
    EXPECT_THAT(aLaVista({"Nombre", "Ayuda"}), ElementsAre("HijosParto", "TotalHijos", "Ingresos2"));
    frm.pulsa(frm.BotonNuevo);
    EXPECT_THAT(aLaVista({"Nombre", "Ayuda"}), ElementsAre("Hijos", "HMin1", "HMin2", "HMin3", "Ingresos"));
}

TEST_F(FamiliarFrmTest, TheSubtitleFollowsTheBenefit) {
    concluye();
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE PRESTACION POR HIJO A CARGO");
    frm.pulsa(frm.Anterior);
    eligeNacimiento();
    concluye();
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE PRESTACION POR NACIMIENTO DE HIJO(S)");
}

TEST_F(FamiliarFrmTest, AllChildrenCannotBeFewerThanThoseBorn) {
    eligeNacimiento();
    escribe(frm.HijosParto, "0");
    EXPECT_FALSE(frm.foco(frm.TotalHijos));
    escribe(frm.HijosParto, "2");
    escribe(frm.TotalHijos, "1");
    EXPECT_FALSE(frm.foco(frm.Nombre));
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre("Error: El número no es correcto. Debe introducir un número entre 1 y 10",
                            "Error: El número no es correcto. Debe introducir un número entre 2 y 20"));
}

TEST_F(FamiliarFrmTest, ABlankFieldCountsZeroInTheCalculationButIsNotSaved) {
    rellena(frm.Hijos, "1");
    frm.Ingresos.ponTexto("");
    EXPECT_EQ(concluye(),
              "El interesado/a desea solicitar una prestación por hijo a cargo.\r\n"
              "El importe mensual es de: 24,25 € por hijo no minusválido, equivalentes\r\n"
              "a  291,00 € por hijo al año.\r\n"
              "La asignación total es de 291,00 € anuales\r\n");
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
    EXPECT_EQ(graba("Sin ingresos"), "");
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: Algún dato no es correcto. Revise el supuesto"));
}

TEST_F(FamiliarFrmTest, ACaseLiesInTheFileByteByByteAndComesBack) {
    frm.Hijos.ponTexto("1");
    frm.HMin1.ponTexto("2");
    frm.HMin2.ponTexto("3");
    frm.HMin3.ponTexto("4");
    frm.Ingresos.ponTexto("1000,5");
    frm.HijosParto.ponTexto("5");
    frm.TotalHijos.ponTexto("6");
    frm.Ingresos2.ponTexto("2000,25");
    eligeNacimiento();
    std::string& bytes = mundo.almacen["Familiar.nom"];
    graba("Todos");
    ASSERT_EQ(bytes.size(), 207U);
    EXPECT_EQ(pruebas::enteroEn(bytes, 161), 1);
    EXPECT_EQ(pruebas::enteroEn(bytes, 165), 2);
    EXPECT_EQ(pruebas::enteroEn(bytes, 169), 3);
    EXPECT_EQ(pruebas::enteroEn(bytes, 173), 4);
    EXPECT_EQ(pruebas::dobleEn(bytes, 177), 1000.5);
    EXPECT_EQ(bytes.substr(185, 4), std::string("\1\0\0\0", 4));
    EXPECT_EQ(pruebas::dobleEn(bytes, 189), 2000.25);
    EXPECT_EQ(pruebas::enteroEn(bytes, 197), 5);
    EXPECT_EQ(pruebas::enteroEn(bytes, 201), 6);
    bytes[185] = 77;
    frm.pulsa(frm.BotonNuevo);
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(frm.Ayuda.indice(), 1) << "out of range is brought to the nearest";
    EXPECT_EQ(frm.Ingresos2.texto(), "2000,25");
    EXPECT_TRUE(frm.Ingresos2.visible());
}

TEST_F(FamiliarFrmTest, PrintsTheIncomeOfTheFirstRoadOnBoth) {
    rellena(frm.Nombre, "Ana");
    rellena(frm.Hijos, "1");
    rellena(frm.Ingresos, "12345,67");
    ASSERT_TRUE(frm.pulsa(frm.BotonPrint));
    EXPECT_THAT(mundo.impresora.lineas,
                ElementsAre("PROTECCION FAMILIAR", "Nombre:Ana", "Número de hijos: 1",
                            "Número de hijos MAYORES de 18 años con grado de minsuvalía superior a 75%: 0",
                            "Número de hijos MAYORES de 18 años con grado de minsuvalía superior a 65%: 0",
                            "Número de hijos MENORES de 18 años con grado de minsuvalía superior a 33%: 0",
                            "Ingresos totales anuales: 12.346", "CONCLUSIONES"));
    eligeNacimiento();
    frm.Ingresos2.ponTexto("999");
    mundo.impresora.lineas.clear();
    ASSERT_TRUE(frm.pulsa(frm.BotonPrint));
    EXPECT_THAT(mundo.impresora.lineas,
                ElementsAre("PROTECCION FAMILIAR", "Nombre:Ana", "Número de nacimientos habidos: 0",
                            "Nº total de hijos: 0", "Ingresos totales anuales: 12.346", "CONCLUSIONES"));
}

}  // namespace
}  // namespace orvemo
