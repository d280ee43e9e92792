#include <cmath>

#include "papel.h"
#include "printing/informe.h"

namespace orvemo {
namespace {

using pruebas::DestinoGrabador;
using pruebas::Operacion;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Whole reports: page breaks, conclusions, a printer that fails.
class InformeTest : public pruebas::Papel {
  protected:
    void imprime(DestinoGrabador& destino) {
        rutinas.empieza(destino);
        rutinas.ImprimeCabecera(1, "DESEMPLEO");
        rutinas.PonPosicion(1.0F, 2.0F);
        rutinas.PonFuente("Arial", 12, "");
        rutinas.PonPosicion(1.0F, 6.0F);
        rutinas.ImprimeTexto("Nombre:$NMaría Güell$n", 1.0F, 0.5F);
        rutinas.ImprimeTexto(" ", 1.0F, 1.0F);
        rutinas.ImprimeTexto("$N$SCONCLUSIONES$n$s", 1.0F, 0.6F);
        rutinas.ImprimeConclusion("La interesada $Sno$s está en alta.\r\n\r\n$PImporte: 5$$");
        destino.EndDoc();
    }

    [[nodiscard]] std::size_t lineasDe(int pagina) const {
        std::size_t cuenta = 0;
        for (const Operacion& op : papel.operaciones) {
            if (op.tipo == Operacion::Tipo::Texto && op.pagina == pagina) ++cuenta;
        }
        return cuenta;
    }
};

const std::vector<std::string> kInforme{
    "Imagen 0.6,0.1 de 6,2 logo.bmp",
    "Texto 0,2.7 Arial 12 «DESEMPLEO»",
    "Caja 0,3.2 1.8,3.3",
    "Linea 0,3.2 21,3.2",
    "Linea 0,26.4 21,26.4",
    "Texto 1,6 Arial 12 «Nombre:»",
    "Texto 2.4,6 Arial 12 N «María Güell»",
    "Texto 1,7.5 Arial 12 NS «CONCLUSIONES»",
    "Texto 1,8.1 Arial 12 «La interesada »",
    "Texto 3.8,8.1 Arial 12 S «no»",
    "Texto 4.2,8.1 Arial 12 « está en alta.»",
    "NewPage",
    "Imagen 0.6,0.1 de 6,2 logo.bmp",
    "Linea 0,3.2 21,3.2",
    "Linea 0,26.4 21,26.4",
    "Texto 1,4.5 Arial 12 «Importe: 5»",
    "Texto 3,4.5 Arial 12 «$»",
    "EndDoc",
};

TEST_F(InformeTest, APrinterThatFailsAnywhereSaysSoAndTheNextReportIsWhole) {
    for (std::size_t n = 0;; ++n) {
        DestinoGrabador averiado;
        averiado.fallaEn = n;
        bool falla = false;
        try {
            imprime(averiado);
        } catch (const FalloImpresion&) {
            falla = true;
        }
        DestinoGrabador sano;
        imprime(sano);
        ASSERT_EQ(sano.dibujo(), kInforme) << "after a failure at operation " << n;
        ASSERT_EQ(averiado.terminado, !falla) << n;
        if (!falla) {
            EXPECT_EQ(n, averiado.operaciones.size()) << "every operation failed once";
            break;
        }
    }
}

// The income tax's dotted lines align in letters of one width, and its date stands above the rest.
TEST_F(InformeTest, ABodyMayHaveItsOwnLettersAndBeginning) {
    Informe informe{rutinas, "RENTA", {.fuente = "Courier New", .tamano = 10, .comienzo = 4.0F}};
    informe.linea("Fecha: 15-06-2005");
    informe.salta(6.0F);
    informe.linea("NIF ...");
    EXPECT_EQ(papel.dibujo()[1], "Texto 0,2.7 Arial 12 «RENTA»");
    EXPECT_EQ(papel.dibujo()[5], "Texto 1,4 Courier New 10 «Fecha: 15-06-2005»");
    EXPECT_EQ(papel.dibujo()[6], "Texto 1,6 Courier New 10 «NIF ...»");
}

// --- Page breaks: the last place where a line may start is 25.69665 cm

TEST_F(InformeTest, ALineThatBeginsPastTheBodyGoesToANewPageWithoutTitle) {
    rutinas.ImprimeCabecera(1, "TITULO");
    rutinas.PonPosicion(1.0F, 25.69F);
    papel.operaciones.clear();
    rutinas.ImprimeTexto("cabe", 1.0F, 0.01F);
    rutinas.ImprimeTexto("pasa", 1.0F, 0.5F);
    EXPECT_THAT(papel.dibujo(),
                ElementsAre("Texto 1,25.69 Arial 10 «cabe»", "NewPage", "Imagen 0.6,0.1 de 6,2 logo.bmp",
                            "Linea 0,3.2 21,3.2", "Linea 0,26.4 21,26.4", "Texto 1,4.5 Arial 10 «pasa»"));
    EXPECT_EQ(rutinas.NumeroPagina(), 2);
    EXPECT_EQ(papel.CurrentY(), 5.0F);
}

TEST_F(InformeTest, TheEndOfThePageIsComparedInSinglePrecision) {
    rutinas.ImprimeCabecera(1);
    const auto fin = static_cast<float>(rutinas.FinCuerpo());
    rutinas.PonPosicion(0, fin);
    EXPECT_FALSE(rutinas.FinDePagina());
    rutinas.PonPosicion(0, std::nextafter(fin, 100.0F));
    EXPECT_TRUE(rutinas.FinDePagina());
}

TEST_F(InformeTest, AMarkBreaksThePageAndGoesOnAtTheSameX) {
    empiezaCuerpo();
    rutinas.ImprimeTexto("$Nantes$pdespués", 2.0F, 0.6F);
    rutinas.ImprimeTexto("otra", 2.0F, 0.6F);
    EXPECT_THAT(papel.dibujo(),
                ElementsAre("Texto 2,6 Arial 12 N «antes»", "NewPage", "Imagen 0.6,0.1 de 6,2 logo.bmp",
                            "Linea 0,3.2 21,3.2", "Linea 0,26.4 21,26.4", "Texto 2,4.5 Arial 12 «después»",
                            "Texto 2,5.1 Arial 12 «otra»"))
        << "the header restores the remembered font, which is not bold";
}

// From 6.0 in steps of 0.6, 33 lines start up to 25.2; from 4.5, 36 lines up to 25.5.
TEST_F(InformeTest, LongConclusionsFillThePages) {
    std::string conclusion;
    for (int i = 0; i < 80; ++i) conclusion += "Línea\r\n";
    empiezaCuerpo();
    rutinas.ImprimeConclusion(conclusion);
    EXPECT_EQ(papel.paginas(), 3);
    EXPECT_EQ(lineasDe(1), 33U);
    EXPECT_EQ(lineasDe(2), 36U);
    EXPECT_EQ(lineasDe(3), 11U);
}

TEST_F(InformeTest, ConclusionsAreCutAtTheirLineEnds) {
    struct {
        std::string_view titulo, conclusion;
        std::vector<std::string> lineas;
        float y;  ///< after the last line, from 6 in steps of 0.6
    } const casos[] = {
        {"none", "", {}, 6.0F},
        {"one without end", "a", {"a"}, 6.6F},
        {"one with its end", "a\r\n", {"a"}, 6.6F},
        {"two", "a\r\nb", {"a", "b"}, 7.2F},
        {"an empty line only advances", "a\r\n\r\nb\r\n", {"a", "b"}, 7.8F},
        {"only an end", "\r\n", {}, 6.6F},
        {"half an end cuts nothing", "a\nb\rc", {"a\nb\rc"}, 6.6F},
    };
    for (const auto& caso : casos) {
        empiezaCuerpo();
        rutinas.ImprimeConclusion(caso.conclusion);
        EXPECT_EQ(papel.lineas(), caso.lineas) << caso.titulo;
        EXPECT_NEAR(papel.CurrentY(), caso.y, 1e-5) << caso.titulo;
    }
}

}  // namespace
}  // namespace orvemo
