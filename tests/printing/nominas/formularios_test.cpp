// Whole pages of the printed forms, row by row.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <string>
#include <string_view>

#include "apoyo/destino_grabador.h"
#include "payroll/caso/calcula_nomina.h"
#include "payroll/documento_nominas.h"
#include "printing/nominas/formularios.h"

namespace orvemo::nomina {
namespace {

using pruebas::DestinoGrabador;
using pruebas::Operacion;

/// The texts of the page from the top down, those of a height on one line; dots before amounts are left out.
std::string filas(const DestinoGrabador& papel) {
    std::map<float, std::map<double, std::string>> alturas;
    for (const Operacion& op : papel.operaciones) {
        if (op.tipo != Operacion::Tipo::Texto || op.texto.find_first_not_of('.') == std::string::npos)
            continue;
        alturas[static_cast<float>(op.y)][op.x] = op.texto;
    }
    std::string pagina;
    for (const auto& [altura, textos] : alturas) {
        std::string fila;
        for (const auto& [x, texto] : textos) fila += (fila.empty() ? "" : " | ") + texto;
        pagina += fila + "\n";
    }
    return pagina;
}

/// The page that the document of that name tells.
std::string pagina(const std::string& nombre) {
    std::ifstream fichero{std::string{ORVEMO_PAGINAS} + '/' + nombre};
    return {std::istreambuf_iterator<char>{fichero}, {}};
}

/// The month whose title begins so, printed.
class Formularios : public testing::Test {
  protected:
    void calcula(std::string_view titulo) {
        const auto historia = std::ranges::find_if(
            documento.historias, [&](const Historia& h) { return Recorta(h.titulo).starts_with(titulo); });
        ASSERT_NE(historia, documento.historias.end()) << titulo;
        registro = historia->registro;
        registro.Nombre.asigna("María Fernández de la Peña");
        registro.NIF.asigna("12345678Z");
        registro.NumMatricula.asigna("AB-1234");
        registro.CuentaSS.asigna("28/1234567890");
        registro.GrupoProfesional.asigna("Oficial 1ª");
        empresa.DatosEmpresa.asigna("Talleres del Norte, S.L.");
        empresa.DatosDomicilio.asigna("Calle Mayor, 1");
        empresa.DatosCif.asigna("B-12345678");
        empresa.DatosCuentaSS.asigna("28/123456789");
        ASSERT_EQ(CalculaSupuesto(registro, documento.tablas(), estado), "");
    }
    [[nodiscard]] DatosFormularios datos() const {
        return {estado, registro, empresa, registro.Nombre.utf8(), FechaDMA(30, 6, 2005)};
    }
    std::string recibo(std::string_view titulo) {
        calcula(titulo);
        DestinoGrabador papel;
        ImprimeReciboSalarios(papel, datos());
        EXPECT_TRUE(papel.terminado);
        return filas(papel);
    }

    Documento documento = leeDocumento();
    RegistroNomina registro;
    OpcionesImpresion empresa;
    EstadoNomina estado;
};

TEST_F(Formularios, TheReceiptOfAMonthWithSickLeave) {
    EXPECT_EQ(recibo("Sick from the 9th to the 30th"), pagina("recibo_enfermedad.txt"));
}

TEST_F(Formularios, TheReceiptOfPartialUnemploymentTellsBothRatesAndBases) {
    const std::string hoja = recibo("Half the day in unemployment");
    for (const char* fila :
         {"1. Percepciones salariales | (Coeficiente de Desempleo Parcial: 0,5)\nSalario Base | 900,00\n",
          "Contingencias comunes 4,70% D.Parcial 3,06% (1) | 69,80\n",
          "Desempleo 1,55% D.Parcial 1,01% (1) | 23,02\nFormación Profesional 0,10% D.Parcial 0,07% (1) | "
          "1,49\n",
          "TOTAL | 900,00\n(D.P.) | 900,00\n",
          "(1) Resultado de multiplicar el tipo normal por el coeficiente 0,5\n"})
        EXPECT_NE(hoja.find(fila), std::string::npos) << fila << "not in\n" << hoja;
}

TEST_F(Formularios, TwelveLinesStandInTheOrderOfTheCatalogueAndTheLastRowGathersTheRest) {
    const std::string hoja = recibo("Everything at once");
    EXPECT_NE(hoja.find("2. Percepciones no salariales\n"
                        "Dietas en general (no computables) | 30,00\n"
                        "Dietas territorio nacional (< 52,29 Euro | 50,00\n"
                        "Plus de Transporte (no computable) | 20,00\n"
                        "Indemnización por fallecimiento | 5,00\n"
                        "Percepciones por matrimonio (no comput) | 10,00\n"
                        "Otras percepciones no salariales | 2.996,00\n"
                        "A. TOTAL DEVENGADO | 3.291,00\n"),
              std::string::npos)
        << hoja;
    EXPECT_NE(hoja.find("3. Vacaciones cobradas en exceso | 150,00\n4. Valor"), std::string::npos) << hoja;
}

TEST_F(Formularios, AnExtraPayHasItsOwnPeriod) {
    EXPECT_NE(recibo("An extra pay of half a year")
                  .find("Período de liquidación: | Paga Extraordinaria de junio | Total días | 30\n"),
              std::string::npos);
}

TEST_F(Formularios, ATrainingContractHasOneBaseAndNoRates) {
    const std::string hoja = recibo("A training contract");
    for (const char* fila :
         {"Contingencias comunes | 5,25\nDesempleo\n", "TOTAL | 448,80\n",
          "ceptos de recaudación conjunta (Fondo de Garantía Salarial) (Epígrafe 113) | 448,80\n"})
        EXPECT_NE(hoja.find(fila), std::string::npos) << fila << "not in\n" << hoja;
}

TEST_F(Formularios, TheContributionFormOfAMonthWithSickLeave) {
    calcula("Sick from the 9th to the 30th");
    DestinoGrabador papel;
    ImprimeTC2(papel, datos());
    EXPECT_TRUE(papel.terminado);
    EXPECT_EQ(filas(papel), pagina("tc2_enfermedad.txt"));
}

TEST_F(Formularios, APrinterThatFailsAnywhereLeavesNoDocument) {
    calcula("Sick from the 9th to the 30th");
    DestinoGrabador entero;
    ImprimeReciboSalarios(entero, datos());
    for (std::size_t i = 0; i < entero.operaciones.size(); ++i) {
        DestinoGrabador papel;
        papel.fallaEn = i;
        EXPECT_THROW(ImprimeReciboSalarios(papel, datos()), FalloImpresion);
        EXPECT_FALSE(papel.terminado) << i;
    }
}

}  // namespace
}  // namespace orvemo::nomina
