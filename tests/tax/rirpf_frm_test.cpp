#include "tax/rirpf_frm.h"

#include <limits>

#include "apoyo/pantalla_abierta.h"
#include "tax/personas.h"

namespace orvemo {
namespace {

using namespace irpf::pruebas;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class RetIrpfFrmTest : public pruebas::PantallaAbierta<RetIrpfFrm> {
  protected:
    void vaA(int pantalla) {
        while (frm.PantallaActual() < pantalla) ASSERT_TRUE(frm.pulsa(frm.Siguiente));
    }

    void agregaHijo(const char* nacimiento, const char* adopcion = "") {
        escribe(frm.familiares.NacimientoHijo, nacimiento);
        escribe(frm.familiares.AdopcionHijo, adopcion);
        EXPECT_TRUE(frm.pulsa(frm.familiares.AgregaHijo));
    }

    void agregaAscendiente(const char* nacimiento, const char* convivencia) {
        escribe(frm.familiares.NacimientoAscen, nacimiento);
        escribe(frm.familiares.ConvAscen, convivencia);
        EXPECT_TRUE(frm.pulsa(frm.familiares.AgregaAscendiente));
    }

    void cargaCaso(irpf::DatosRetencion datos) {
        mundo.almacen["RIRPF.nom"] = irpf::kDiseno.escribe(datos);
        frm.DatosCargaRegistro(1);
    }

    /// The case as it is saved, the last of the file.
    irpf::DatosRetencion guardado(const char* nombre = "Caso") {
        const std::string& fichero = graba(nombre);
        irpf::DatosRetencion datos;
        irpf::kDiseno.lee(fichero.substr(fichero.size() - irpf::kDiseno.longitud()), datos);
        return datos;
    }

    Campo& hijos = frm.familiares.Descendientes;
    Campo& ascendientes = frm.familiares.Ascendientes;
};

TEST_F(RetIrpfFrmTest, UnCasoDePrincipioAFin) {
    EXPECT_EQ(frm.Subtitulo(), "Datos del solicitante");
    escribe(frm.AnioNacimiento, "1965");
    escribe(frm.Retribuciones, "24000");
    escribe(frm.Gastos, "1524");
    frm.elige(frm.circunstancias.Discapacidad, 0);
    EXPECT_TRUE(frm.circunstancias.GradoDiscapacidad.visible());
    frm.elige(frm.circunstancias.GradoDiscapacidad, 2);
    vaA(1);
    frm.marca(frm.familiares.ComputoHijo, true);
    agregaHijo("1998");
    frm.elige(frm.familiares.DiscapacidadHijo, 2);
    agregaHijo("1999", "2003");
    agregaAscendiente("1928", "2");
    EXPECT_THAT(hijos.opciones(),
                ElementsAre("199801  Nacimiento 1998, Sin discapacidad, Familia Monoparental",
                            "199920  Nacimiento 1999, adopción 2003, Disc >=33% y <65% Mov.Red."));
    EXPECT_THAT(ascendientes.opciones(),
                ElementsAre("192800  Nacimiento 1928, convivencia 2, Sin discapacidad"));
    frm.concluye();
    EXPECT_TRUE(frm.ConDerecho());
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE RETENCION A CUENTA DEL IRPF");
    // 22476 less 2400 + 2800 + 3400 + 1400 + 750 + 600 + 400 + 500 and 2000 + 1000 + 1000: 6226 of base.
    EXPECT_THAT(frm.textoConclusion(), HasSubstr("LA RETENCIÓN ........................... 6.226,00\r\n"));
    EXPECT_THAT(frm.textoConclusion(), HasSubstr("- Discapacidad ...................................... "
                                                 ">= 33% Y <65%\r\n"));
    EXPECT_DOUBLE_EQ(frm.resultado()->TipoRetencion, 4.69);

    const auto datos = guardado();
    EXPECT_EQ(datos.Hijos[0], hijo(1998));
    EXPECT_EQ(datos.Hijos[1], hijo(1999, 0, 2003, 2));
    EXPECT_EQ(datos.Ascendientes[0], ascendiente(1928, 2));
    EXPECT_EQ(datos.GradoDiscapacidad, 0);
    EXPECT_EQ(datos.SituacionFamiliar, 3);
    frm.pulsa(frm.BotonNuevo);
    EXPECT_THAT(hijos.opciones(), IsEmpty());
    frm.DatosCargaRegistro(1);
    const auto otra = guardado("El mismo");
    EXPECT_EQ(otra.Hijos, datos.Hijos);
    EXPECT_EQ(otra.Ascendientes, datos.Ascendientes);
}

TEST_F(RetIrpfFrmTest, LoQueNoEsUnFamiliarSeRechaza) {
    vaA(1);
    agregaHijo("1899");
    agregaHijo("2000", "1899");
    agregaAscendiente("", "1");
    agregaAscendiente("1930", "0");
    agregaAscendiente("1930", "");
    for (int i = 0; i < 11; ++i) agregaHijo("2000", "1999");
    for (int i = 0; i < 6; ++i) agregaAscendiente("1930", "9");
    EXPECT_THAT(hijos.opciones(), SizeIs(10));
    EXPECT_THAT(ascendientes.opciones(), SizeIs(5));
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre("Error: Año de nacimiento incorrecto", "Error: Año de adopción incorrecto",
                            "Error: Año de nacimiento incorrecto",
                            "Error: El número de personas que conviven debe estar entre 1 y 9",
                            "Error: El número de personas que conviven debe estar entre 1 y 9",
                            "Error: El número de personas que conviven debe estar entre 1 y 9",
                            "Error: No caben más de 10 hijos y otros descendientes",
                            "Error: No caben más de 5 ascendientes"));
    frm.elige(hijos, 9);
    EXPECT_TRUE(frm.pulsa(frm.familiares.BorraHijo));
    EXPECT_THAT(hijos.opciones(), SizeIs(9));
    EXPECT_EQ(hijos.indice(), 8);
}

TEST_F(RetIrpfFrmTest, SiTodoEstaPercibidoLaRegularizacionFalla) {
    auto datos = trabajador(30000);
    datos.Regularizacion = 1;
    datos.RetribucionAcumulada = 30000;
    cargaCaso(datos);
    EXPECT_TRUE(frm.FrmRegularizacion.visible());
    frm.concluye();
    EXPECT_THAT(mundo.mensajes.dichos, SizeIs(1));
    EXPECT_TRUE(frm.Mal.visible());
    EXPECT_FALSE(frm.resultado().has_value());
}

TEST_F(RetIrpfFrmTest, UnTopeSeRecuerdaEnTodoElPrograma) {
    auto datos = trabajador(30000);
    datos.Regularizacion = 1;
    datos.RetribucionAcumulada = 12000;
    datos.BaseA = 24200;
    datos.TipoA = 15;
    cargaCaso(datos);
    frm.concluye();
    EXPECT_EQ(mundo.valores.LimitaTipo, "S");
}

TEST_F(RetIrpfFrmTest, UnRegistroDanadoConservaLoQueLaPantallaNoSabeDecir) {
    irpf::DatosRetencion datos;
    irpf::kDiseno.lee(std::string(482, '\xFF'), datos);
    datos.Retribuciones = datos.Reducciones = datos.Gastos = datos.Pension = datos.Anualidades = 0;
    datos.RetribucionAcumulada = datos.RetencionAcumulada = datos.BaseA = 0;
    datos.RetribucionInicial = datos.RetencionInicial = 0;
    cargaCaso(datos);
    EXPECT_THAT(hijos.opciones(), SizeIs(10));
    frm.concluye();
    const auto leidos = guardado();
    EXPECT_EQ(leidos.TipoContrato, 255);
    EXPECT_EQ(leidos.SituacionFamiliar, 255);
    EXPECT_EQ(leidos.Hijos[9], hijo(-1, 0, -1));
    EXPECT_EQ(leidos.Ascendientes[4], ascendiente(-1, 255));
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());

    cargaCaso(
        con(datos, [](irpf::DatosRetencion& d) { d.Gastos = std::numeric_limits<double>::quiet_NaN(); }));
    frm.concluye();
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: Algún dato no es correcto. Revise el supuesto"));
}

TEST_F(RetIrpfFrmTest, ElInforme) {
    cargaCaso(con(trabajador(7000.6), [](irpf::DatosRetencion& d) {
        d.Nombre.asigna("Ana Mora");
        d.NIF.asigna("00000001R");
        d.SituacionLaboral = 1;
        d.Pension = 1234;
    }));
    frm.concluye();
    ASSERT_TRUE(frm.pulsa(frm.BotonPrint));
    auto lineas = mundo.impresora.lineas;
    ASSERT_THAT(lineas, SizeIs(45));
    lineas.erase(lineas.begin() + 12, lineas.end() - 3);
    EXPECT_THAT(lineas,
                ElementsAre("RETENCIONES - RENTA 2003", "Fecha: 15-06-2005", "- Nombre: Ana Mora",
                            "- NIF ............................................... 00000001R",
                            "- Año Nacimiento .................................... 1965",
                            "- Retribuciones Anuales ............................. 7.001",
                            "- Reducciones Art. 17.2 ............................. 0",
                            "- Gastos Anuales <<art. 17.3 a), b) y c)>> .......... 0",
                            "- Pensión compensatoria en favor del cónyuge......... 600",
                            "- Anualidades a favor de los hijos .................. 0", "CONCLUSIONES",
                            "- Situación Familiar ................................ 3",
                            "- Tipo de Retención ................................. 0,00",
                            "- Importe anual de la retención ..................... 0,00", "Régimen Normal"));
}

}  // namespace
}  // namespace orvemo
