#include "benefits/desempleo/desemp_frm.h"

#include "apoyo/pantalla_abierta.h"

namespace orvemo {
namespace {

using pruebas::doblesEn;
using pruebas::enterosEn;
using testing::ElementsAre;

class DesempFrmTest : public pruebas::PantallaAbierta<DesempFrm> {
  protected:
    void rellenaCaso() {
        rellena(
            {{&frm.Nombre, "María Ñúñez"}, {&frm.Edad, "40"}, {&frm.Suma, "7200,50"}, {&frm.Dias, "720"}});
    }
};

TEST_F(DesempFrmTest, OpensCleanOnItsDefaults) {
    EXPECT_EQ(frm.actual(), &frm.Nombre);
    EXPECT_EQ(frm.Edad.texto(), "0");
    EXPECT_EQ(frm.Fecha.texto(), "15-06-2005");
    EXPECT_EQ(frm.fIni.texto(), "15-06-2005");
    EXPECT_THAT(aLaVista({}),
                ElementsAre("Nombre", "Edad", "Fecha", "fIni", "Suma", "Dias", "Hijos", "Parcial"));
    EXPECT_THAT(cabecera(),
                ElementsAre("PRESTACIONES DE DESEMPLEO", "Prestaciones de desempleo", "desemp.nom",
                            "Datos del solicitante", "CONCLUSIONES SOBRE PRESTACION DE DESEMPLEO"));
    EXPECT_TRUE(frm.Mal.visible());
    ASSERT_TRUE(frm.pulsa(frm.Anterior));
    EXPECT_EQ(frm.actual(), &frm.Nombre);
}

TEST_F(DesempFrmTest, NumbersAreHeldToTheirLimits) {
    frm.marca(frm.Parcial, true);
    EXPECT_THAT(limites(), ElementsAre("Edad 1 y 99", "Suma 0 y 999999", "Dias 0 y 9999", "Hijos 0 y 20",
                                       "Horas 1 y 39"));
    escribe(frm.Nombre, std::string(60, 'x'));
    EXPECT_EQ(frm.Nombre.texto().size(), 50U);
}

TEST_F(DesempFrmTest, HoursShowWithPartTimeButNotWhileLoading) {
    frm.marca(frm.Parcial, true);
    EXPECT_TRUE(frm.Horas.visible());
    frm.pulsa(frm.BotonNuevo);
    EXPECT_FALSE(frm.Parcial.marcado());
    EXPECT_TRUE(frm.Horas.visible()) << "the mark went while the program itself was setting fields";
    frm.marca(frm.Parcial, true);
    frm.marca(frm.Parcial, false);
    EXPECT_FALSE(frm.Horas.visible());
}

TEST_F(DesempFrmTest, UnreadableNumbersStopTheCopyAndTheCalculationGoesOn) {
    rellenaCaso();
    frm.Dias.ponTexto("");
    EXPECT_THAT(concluye(), testing::HasSubstr("Debe haber cumplido 12 meses"));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: Algún dato no es correcto. Revise el supuesto"));
    EXPECT_EQ(frm.caso().Edad, 40) << "what stands before the bad field was copied";
    EXPECT_TRUE(frm.Mal.visible());
}

TEST_F(DesempFrmTest, ACaseLiesInTheFileByteByByteAndComesBack) {
    rellenaCaso();
    frm.marca(frm.Parcial, true);
    rellena({{&frm.Horas, "20"}, {&frm.Hijos, "3"}, {&frm.Fecha, "7/6/05"}});
    const std::string bytes = vaYVuelve("Caso 1");
    ASSERT_EQ(bytes.size(), 297U);
    EXPECT_EQ(bytes.substr(0, 9), " Caso 1  ");
    EXPECT_EQ(bytes.substr(81, 12), "Mar\355a \321\372\361ez ");
    EXPECT_THAT(enterosEn(bytes, {161, 189, 193, 197, 201}), ElementsAre(40, 720, 3, 20, 1));
    EXPECT_THAT(doblesEn(bytes, {165, 173, 181}), ElementsAre(38510, 38518, 7200.5))
        << "07-06-2005 and 15-06-2005 in days since 30-12-1899";
    EXPECT_EQ(bytes.substr(205), std::string(92, '\0'));
}

TEST_F(DesempFrmTest, PrintsWhatStandsOnTheScreen) {
    rellenaCaso();
    rellena(frm.Fecha, "7/6/05");
    concluye();
    EXPECT_TRUE(frm.Ok.visible());
    EXPECT_FALSE(frm.Mal.visible());
    EXPECT_THAT(
        imprime(),
        ElementsAre("DESEMPLEO", "Nombre:María Ñúñez", "Edad: 40", "Fecha de solicitud: 07-jun-2005",
                    "Fecha de inicio de la situación: 15-jun-2005",
                    "Suma de cotizaciones de los últimos 180 días: 7.200,50€",
                    "Número de hijos menores de 26 años o minusválidos: 0", "CONCLUSIONES",
                    "El interesado desea solicitar una prestación de desempleo.",
                    "Tiene derecho a 240 días de prestación.", "La base reguladora diaria es de 40,00 €.",
                    "Los primeros 180 días tendrá una prestación de 28,00 € diarios.",
                    "A partir del día 181 la prestación será de 24,00 € diarios."));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Informa: Impresión terminada"));
}

}  // namespace
}  // namespace orvemo
