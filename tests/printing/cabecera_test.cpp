#include "papel.h"

namespace orvemo {
namespace {

using pruebas::DestinoGrabador;
using pruebas::Operacion;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using CabeceraTest = pruebas::Papel;

// A4 is 11906 x 16838 twips: 20.998 cm wide; the foot is counted from 16838 / 567 - 0.5 = 29.197 cm.
constexpr double kAnchoA4 = 11906.0 / 567;
constexpr double kAltoA4 = 16838.0 / 567 - 0.5;

std::vector<std::string> fuentes(const DestinoGrabador& papel) {
    std::vector<std::string> puestas;
    for (const Operacion& op : papel.operaciones) {
        if (op.tipo != Operacion::Tipo::PonFuente) continue;
        const std::string fuente = pruebas::descripcion(op.fuente);
        if (puestas.empty() || puestas.back() != fuente) puestas.push_back(fuente);
    }
    return puestas;
}

TEST_F(CabeceraTest, FirstPageHasLogoTitleBarAndTwoRules) {
    rutinas.ImprimeCabecera(1, "  DESEMPLEO ");
    EXPECT_THAT(papel.dibujo(), ElementsAre("Imagen 0.6,0.1 de 6,2 logo.bmp",    //
                                            "Texto 0,2.7 Arial 12 «DESEMPLEO»",  //
                                            "Caja 0,3.2 1.8,3.3",                // 9 characters of 0.2
                                            "Linea 0,3.2 21,3.2",                //
                                            "Linea 0,26.4 21,26.4"));
    EXPECT_EQ(rutinas.NumeroPagina(), 1);
    EXPECT_DOUBLE_EQ(rutinas.AnchoPagina(), kAnchoA4);
    EXPECT_DOUBLE_EQ(rutinas.AnchoImpresion(), kAnchoA4);
    EXPECT_DOUBLE_EQ(rutinas.AltoPagina(), kAltoA4);
    EXPECT_DOUBLE_EQ(rutinas.FinCuerpo(), kAltoA4 - 3.5);
    EXPECT_EQ(papel.CurrentX(), 0.0F);
    EXPECT_EQ(papel.CurrentY(), 4.5F);
}

TEST_F(CabeceraTest, ABreakOfTheRoutineCanRepeatTheTitle) {
    rutinas.ImprimeCabecera(1, "UNO");
    papel.operaciones.clear();
    rutinas.ImprimeCabecera({}, "DOS");
    EXPECT_EQ(papel.dibujo().front(), "NewPage");
    EXPECT_THAT(papel.lineas(), ElementsAre("DOS"));
    EXPECT_EQ(papel.operaciones.back().pagina, 2);
}

TEST_F(CabeceraTest, FontsPassFromTitleToFootToTheRememberedOne) {
    rutinas.ImprimeCabecera(1, "TITULO");
    EXPECT_THAT(fuentes(papel), ElementsAre("Arial 8", "Arial 12", "Arial 10", "SmallFonts 10",
                                            "SmallFonts 6", "SmallFonts 10", "Arial 10"));
    papel.operaciones.clear();
    rutinas.PonFuente("Courier New", 9, "NS");
    rutinas.ImprimeCabecera();
    EXPECT_EQ(papel.Font(),
              (Fuente{.nombre = "Courier New", .tamano = 9, .negrita = true, .subrayado = true}));
}

TEST_F(CabeceraTest, TheTitleTakesMarksAndTheBarMeasuresItAsWritten) {
    rutinas.ImprimeCabecera(1, "A$NB");
    EXPECT_EQ(papel.dibujo()[1], "Texto 0,2.7 Arial 12 «A»");
    EXPECT_EQ(papel.dibujo()[2], "Texto 0.2,2.7 Arial 12 N «B»");
    EXPECT_EQ(papel.dibujo()[3], "Caja 0,3.2 0.8,3.3");
}

TEST_F(CabeceraTest, TheSheetIsReadInWholeTwipsHalfToEven) {
    papel.ponHoja(11906.5, 16837.5);
    rutinas.ImprimeCabecera(1);
    EXPECT_DOUBLE_EQ(rutinas.AnchoPagina(), kAnchoA4);
    EXPECT_DOUBLE_EQ(rutinas.AltoPagina(), kAltoA4);
}

TEST_F(CabeceraTest, ASheetTooShortForAnyBodyStillEnds) {
    papel.ponHoja(5670, 567);
    rutinas.ImprimeCabecera(1, "TITULO");
    rutinas.ImprimeTexto("línea", 1.0F, 0.5F);
    EXPECT_THAT(papel.lineas(), ElementsAre("TITULO", "línea"));
}

TEST_F(CabeceraTest, ALogoWithoutHeightIsRefused) {
    rutinas.ponLogo({.nombre = "logo.bmp", .ancho = 10, .alto = 0});
    EXPECT_THROW(rutinas.ImprimeCabecera(1), DivisionPorCero);
    EXPECT_THAT(papel.lineas(), IsEmpty());
}

// --- What passes from one report to the next

TEST_F(CabeceraTest, ASecondReportKeepsFontAndPrintWidthOfTheFirst) {
    rutinas.ImprimeCabecera(1, "PRIMERO");
    rutinas.PonFuente("Courier New", 10, "S");
    rutinas.ImprimeCabecera();

    DestinoGrabador a5{8391, 11906};
    rutinas.empieza(a5);
    rutinas.ImprimeCabecera(1, "SEGUNDO");
    EXPECT_EQ(rutinas.NumeroPagina(), 1);
    EXPECT_DOUBLE_EQ(rutinas.AnchoPagina(), 8391.0 / 567);
    EXPECT_DOUBLE_EQ(rutinas.AnchoImpresion(), kAnchoA4) << "the first report's, whatever the paper now";
    EXPECT_DOUBLE_EQ(rutinas.FinCuerpo(), 11906.0 / 567 - 4);
    EXPECT_EQ(a5.dibujo()[1], "Texto 0,2.7 Arial 12 «SEGUNDO»");
    EXPECT_EQ(a5.dibujo()[3], "Linea 0,3.2 21,3.2");
    EXPECT_EQ(a5.dibujo()[4], "Linea 0,17.7 21,17.7") << "20.998 - 0.5 - 2.8: the foot follows the paper";
    EXPECT_EQ(a5.Font(), (Fuente{.nombre = "Courier New", .tamano = 10, .subrayado = true}));
    rutinas.PonFuente("Arial", 12, "");
    EXPECT_EQ(a5.Font(), (Fuente{.nombre = "Arial", .tamano = 12}));
}

// --- Place and font

TEST_F(CabeceraTest, StyleIsReadFromItsCapitals) {
    struct {
        std::string_view estilo;
        bool negrita, subrayado;
    } const casos[] = {{"", false, false},  {"N", true, false},   {"S", false, true},
                       {"NS", true, true},  {"SN", true, true},   {"ns", false, false},
                       {"K", false, false}, {"xNy", true, false}, {"n S", false, true}};
    for (const auto& caso : casos) {
        rutinas.PonFuente({}, {}, caso.estilo);
        EXPECT_EQ(papel.Font().negrita, caso.negrita) << caso.estilo;
        EXPECT_EQ(papel.Font().subrayado, caso.subrayado) << caso.estilo;
    }
}

TEST_F(CabeceraTest, OnlyWhatIsGivenOfAFontChanges) {
    rutinas.PonFuente("Courier New", 10, "N");
    rutinas.PonFuente({}, 7);
    EXPECT_EQ(papel.Font(), (Fuente{.nombre = "Courier New", .tamano = 7, .negrita = true}));
    rutinas.PonFuente("Arial");
    EXPECT_EQ(papel.Font(), (Fuente{.nombre = "Arial", .tamano = 7, .negrita = true}));
    papel.Font({.nombre = "otra", .tamano = 30});
    rutinas.RestauraFuente();
    EXPECT_EQ(papel.Font(), (Fuente{.nombre = "Arial", .tamano = 7, .negrita = true}));
}

TEST_F(CabeceraTest, ASizeThatFillsNoByteOverflows) {
    rutinas.PonFuente({}, 255);
    EXPECT_THROW(rutinas.PonFuente({}, 256), DesbordeNumerico);
    EXPECT_THROW(rutinas.PonFuente({}, -1), DesbordeNumerico);
    rutinas.RestauraFuente();
    EXPECT_EQ(papel.Font().tamano, 255);
}

TEST_F(CabeceraTest, PlaceIsSetXFirstAndALineAdvancesFromTheLeftEdge) {
    rutinas.PonPosicion(1.5F, 6.0F);
    rutinas.AvanzaLinea(0.25F);
    std::vector<std::string> pasos;
    for (const Operacion& op : papel.operaciones) pasos.push_back(pruebas::descripcion(op));
    EXPECT_THAT(pasos, ElementsAre("X 1.5", "Y 6", "X 0", "Y 6.25"));
}

}  // namespace
}  // namespace orvemo
