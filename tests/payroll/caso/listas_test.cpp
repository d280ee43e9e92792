// The catalogue of concepts and the lists of contracts and epigraphs.
#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

#include "foundations/values/fallos.h"
#include "payroll/conceptos/conceptos.h"
#include "payroll/contratos/contratos.h"
#include "payroll/contratos/epigrafes.h"

namespace orvemo::nomina {
namespace {

using testing::ElementsAre;

std::string datos(const char* nombre) {
    std::ifstream fichero{std::string{ORVEMO_DATOS} + "/" + nombre, std::ios::binary};
    return {std::istreambuf_iterator<char>{fichero}, {}};
}

TEST(Conceptos, TheCatalogueInItsOrder) {
    std::string codigos;
    for (const ConceptoNomina& c : CatalogoConceptos()) codigos += std::string{c.Codigo} + " ";
    EXPECT_EQ(codigos,
              "01 02 03 04 05 08 20 21 22 23 24 25 26 27 28 29 31 32 40 41 42 43 44 45 46 47 48 49 50 51 52 "
              "53 54 55 "
              "56 57 58 59 60 61 62 63 70 71 72 74 75 76 77 78 80 8A 8B 8C 8D 81 82 83 84 85 86 87 88 89 95 "
              "90 91 92 "
              "93 98 99 AN SP HE HN HF PE DP IX IE IO IV IC IT AT ");
    EXPECT_EQ(ListaConceptos().size(), 77U);
    EXPECT_EQ(ListaConceptos().at(51), "8A. Dietas territorio nacional (< 52,29 Euros diarias)");
}

TEST(Conceptos, AFewAtTheirLimits) {
    struct Caso {
        const char *codigo, *flags, *texto;
        char periodo;
        int limite;
    };
    for (const Caso& c : std::initializer_list<Caso>{
             {"01", "SSSSSS", "Salario Base", ' ', 99999999},
             {"42", "SSSSSS", "Direferencia salario empresa", ' ', 99999999},
             {"77", "NSSSSS", "Percepciones asistenciales", ' ', 99999999},
             {"78", "SNNNNS", "Premio de Jubilación", 'A', 99999999},
             {"8A", "NNNNNN", "Dietas territorio nacional (< 52,29 Euro", 'A', 52},
             {"8B", "NNNSSS", "Dietas territorio nacional (exceso sobre", 'A', 99999999},
             {"8D", "NNNSSS", "Dietas territorio extranjero (exceso sob", 'A', 91},
             {"83", "NNNNNS", "Plus de Transporte (no computable)", ' ', 92},
             {"SP", "SNNSSN", "Pago en Especie", ' ', 99999999},
             {"HE", "SNNNSS", "H.Ext Estructurales", 'A', 99999999},
             {"PE", "SNNNNS", "Paga Extraordinaria", 'E', 99999999},
             {"IV", "SNNSSS", "P.P. vacaciones", 'A', 99999999},
         }) {
        SCOPED_TRACE(c.codigo);
        EXPECT_EQ(TextoFlags(FlagsDe(c.codigo)), c.flags);
        EXPECT_EQ(TextoConcepto(c.codigo), c.texto);
        EXPECT_EQ(BuscaConcepto(c.codigo).Periodicidad, c.periodo);
        EXPECT_EQ(ConceptoDe(c.codigo)->Limite(), c.limite);
    }
    EXPECT_EQ(BuscaConcepto("02").indice, 2);
    EXPECT_EQ(BuscaConcepto("8a").indice, -1);
    EXPECT_EQ(BuscaConcepto("  ").indice, 0);
    EXPECT_EQ(TextoFlags(FlagsDe("8a")), "NNNNNN");
    EXPECT_EQ(TextoConcepto("8a"), "???");
    EXPECT_EQ(TextoDeLista("8a", ListaConceptos()), "¿¿¿???");
    EXPECT_EQ(TextoIncidencia("4", ListaIncidencias()), "Permiso no retribuido");
    EXPECT_EQ(IndiceIncidencia("6", ListaIncidencias()), -1);
}

TEST(Contratos, ARowIsReadFieldByField) {
    const Contratos contratos{
        "*#10 Grupo uno#2#más\r\n 12 #12A Cont\xF1rato#12#H#B#S#50#1#25,5#\n7#\n*#Otro#1\n8#8#8##R#SNSSS"};
    EXPECT_THAT(contratos.grupos(), ElementsAre("10 Grupo uno", "Otro"));
    ASSERT_EQ(contratos.filas().size(), 3U);
    const ContratoNomina& f = contratos.fila(1);
    EXPECT_EQ(f.Codigo + "|" + f.Texto + "|" + f.Clave + "|" + f.Modo + "|" + f.TipoIncentivo + "|" + f.Flags,
              "12  |12A Contñrato|12|H|B|SNN");
    EXPECT_THAT((std::vector{f.tramo1.Pct, f.tramo2.Pct, f.tramo3.Pct}), ElementsAre(50, 25.5, 0));
    EXPECT_THAT((std::vector{f.tramo1.Anios, f.tramo2.Anios, f.tramo3.Anios}), ElementsAre(1, 100, 100));
    EXPECT_THAT((std::vector{f.RecargoEmpresa, f.RecargoTrab}), ElementsAre(1.7, 0.05));
    EXPECT_EQ(contratos.fila(2).Modo + contratos.fila(2).Flags, " NNN");
    EXPECT_EQ(contratos.fila(3).Flags, "SNS");
    EXPECT_EQ(contratos.fila(3).RecargoEmpresa, 0.7);
    EXPECT_EQ(contratos.indiceDe("8   "), 3);
    EXPECT_THROW((void)contratos.indiceDe("8"), TextoIlegible);
    EXPECT_THROW((void)contratos.fila(4), TextoIlegible);
    EXPECT_EQ(contratos.delGrupo("12A").size(), 1U);
    EXPECT_TRUE(EsContratoParcial("200 ") && EsContratoParcial("501A") && !EsContratoParcial("300 "));
}

TEST(Epigrafes, ACodeHasThreeFigures) {
    const Epigrafes epigrafes{"16#3,15#3.35#Taurinos\r\n126#0,27#0,54#Bajas#y más\r\n"};
    EXPECT_THAT(epigrafes.lista(), ElementsAre("016-Taurinos", "126-Bajas"));
    EXPECT_EQ(epigrafes.CuotaIT(1000, "016"), 31.5);
    EXPECT_EQ(epigrafes.CuotaIMS(1076.66, "126"), 5.81);
    EXPECT_EQ(epigrafes.CuotaIT(1000, "16 "), 0);
}

TEST(ListasDeFabrica, AreFitForThePayroll) {
    const Contratos contratos{datos("CONTRATO.NOM")};
    EXPECT_EQ(contratos.grupos().size(), 43U);
    EXPECT_EQ(contratos.filas().size(), 125U);
    EXPECT_EQ(contratos.indiceDe("100 "), 1);
    for (const std::string& grupo : contratos.grupos())
        EXPECT_FALSE(contratos.delGrupo(grupo).empty()) << grupo;
    const Epigrafes epigrafes{datos("EPIG.NOM")};
    EXPECT_EQ(epigrafes.lista().front(), "016-Profesionales taurinos (tipos de 2008)");
    EXPECT_EQ(epigrafes.CuotaIT(1000, "126") + epigrafes.CuotaIMS(1000, "126"), 2.7 + 5.4);
}

}  // namespace
}  // namespace orvemo::nomina
