#include "benefits/familiar/familiar_frm.h"

#include "apoyo/pantalla_abierta.h"

namespace orvemo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FamiliarFrmTest : public pruebas::PantallaAbierta<FamiliarFrm> {
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
    EXPECT_THAT(cabecera(),
                ElementsAre("PRESTACIONES FAMILIARES NO CONTRIBUTIVAS",
                            "Prestaciones familiares no contributivas", "Familiar.nom",
                            "Datos del solicitante", "CONCLUSIONES SOBRE PRESTACION POR HIJO A CARGO"));
    frm.pulsa(frm.Anterior);
    eligeNacimiento();
    concluye();
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE PRESTACION POR NACIMIENTO DE HIJO(S)");
}

TEST_F(FamiliarFrmTest, AllChildrenCannotBeFewerThanThoseBorn) {
    EXPECT_THAT(limites(), ElementsAre("Hijos 0 y 20", "HMin1 0 y 20", "HMin2 0 y 20", "HMin3 0 y 20",
                                       "Ingresos 0 y 99999999"));
    eligeNacimiento();
    rellena(frm.HijosParto, "4");
    EXPECT_THAT(limites(), ElementsAre("HijosParto 1 y 10", "TotalHijos 4 y 20", "Ingresos2 0 y 99999999"));
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
    rellena(
        {{&frm.Nombre, "Ana"}, {&frm.Hijos, "1"}, {&frm.HMin1, "2"}, {&frm.HMin2, "3"}, {&frm.HMin3, "4"}});
    rellena(frm.Ingresos, "1000,5");
    eligeNacimiento();
    rellena({{&frm.HijosParto, "5"}, {&frm.TotalHijos, "6"}, {&frm.Ingresos2, "2000,25"}});
    std::string bytes = vaYVuelve("Todos");
    ASSERT_EQ(bytes.size(), 207U);
    EXPECT_THAT(pruebas::enterosEn(bytes, {161, 165, 169, 173, 197, 201}), ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_THAT(pruebas::doblesEn(bytes, {177, 189}), ElementsAre(1000.5, 2000.25));
    EXPECT_EQ(bytes.substr(185, 4), std::string("\1\0\0\0", 4));
    for (const auto& [guardado, elegido] : {std::pair{"\xFB\xFF", 0}, {"\x4D\x01", 1}}) {
        mundo.almacen["Familiar.nom"] = bytes.replace(185, 2, guardado);
        frm.DatosCargaRegistro(1);
        EXPECT_EQ(frm.Ayuda.indice(), elegido) << "out of range is brought to the nearest";
    }
}

TEST_F(FamiliarFrmTest, PrintsTheIncomeOfTheFirstRoadOnBoth) {
    rellena(frm.Nombre, "Ana");
    rellena(frm.Hijos, "1");
    rellena(frm.Ingresos, "12345,67");
    EXPECT_THAT(imprime(),
                ElementsAre("PROTECCION FAMILIAR", "Nombre:Ana", "Número de hijos: 1",
                            "Número de hijos MAYORES de 18 años con grado de minsuvalía superior a 75%: 0",
                            "Número de hijos MAYORES de 18 años con grado de minsuvalía superior a 65%: 0",
                            "Número de hijos MENORES de 18 años con grado de minsuvalía superior a 33%: 0",
                            "Ingresos totales anuales: 12.346", "CONCLUSIONES"));
    eligeNacimiento();
    frm.Ingresos2.ponTexto("999");
    EXPECT_THAT(imprime(),
                ElementsAre("PROTECCION FAMILIAR", "Nombre:Ana", "Número de nacimientos habidos: 0",
                            "Nº total de hijos: 0", "Ingresos totales anuales: 12.346", "CONCLUSIONES"));
}

}  // namespace
}  // namespace orvemo
