// The payslip of docs/payslip.md, worked out there by hand.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

#include "foundations/values/formatos.h"
#include "payroll/caso/calcula_nomina.h"
#include "payroll/recibo/recibo.h"

namespace orvemo::nomina {
namespace {

RegistroNomina juniode2005() {
    RegistroNomina r;
    r.Nombre.asigna("Elena Ríos");
    r.Mes = 5;
    r.FechaInicio.asigna("01-03-2001");
    r.Categoria = 4;
    r.Epigrafe.asigna("113");
    r.CodigoContrato.asigna("100");
    r.Edad = 34;
    r.NumPagas[0] = 2;
    r.PagaExtra[0] = 1200;
    r.IRPFExtra = 12;
    const std::tuple<const char*, double, const char*> conceptos[] = {
        {"01", 1200, "M"}, {"02", 80, "M"}, {"83", 60, "M"}, {"HE", 90, "A"}};
    for (std::size_t i = 0; const auto& [codigo, importe, periodo] : conceptos) {
        r.CodigoConcepto[i].asigna(codigo);
        r.ImporteConcepto[i] = importe;
        r.UnidadConcepto[i++].asigna(periodo);
    }
    r.CodigoIncidencia[0].asigna("1");
    r.DiaInicioInci[0] = 15;
    r.DiaFinInci[0] = 24;
    r.BaseCCAnt = 1450;
    r.BaseATEPAnt = 1490;
    r.HEAnt = 40;
    r.HEAnioAnt = 360;
    r.DiasAnt = 30;
    return r;
}

/// Rows "| `Figure` | value | how |" of the page.
std::map<std::string, std::string> cifrasDeLaPagina() {
    std::ifstream pagina{ORVEMO_PAYSLIP};
    std::map<std::string, std::string> cifras;
    for (std::string linea; std::getline(pagina, linea);) {
        if (!linea.starts_with("| `")) continue;
        const auto nombre = linea.substr(3, linea.find('`', 3) - 3);
        const auto valor = linea.find(" | ") + 3;
        cifras[nombre] = linea.substr(valor, linea.find(" | ", valor) - valor);
    }
    return cifras;
}

const TablasNomina kTablas{Contratos{"*#100 Indefinido#0\n100#100 Indefinido#100###NNN"},
                           Epigrafes{"113#0,45#0,54#Oficina"}};

TEST(Payslip, ThePageAndTheProgramAgree) {
    EstadoNomina estado;
    ASSERT_EQ(CalculaSupuesto(juniode2005(), kTablas, estado), "");
    std::map<std::string, std::string> hay;
    CadaCampo(estado, [&](std::string_view nombre, const auto& valor) {
        if constexpr (std::is_convertible_v<decltype(valor), double>)
            hay[std::string{nombre}] = TextoPlano(static_cast<double>(valor));
    });
    const auto cifras = cifrasDeLaPagina();
    EXPECT_EQ(cifras.size(), 37U);
    for (const auto& [nombre, valor] : cifras) EXPECT_EQ(hay[nombre], valor) << nombre;
}

TEST(Payslip, ATerminalShowsTheWholeReceipt) {
    EstadoNomina estado;
    ASSERT_EQ(CalculaSupuesto(juniode2005(), kTablas, estado), "");
    const std::string texto = TextoRecibo(estado, juniode2005());
    for (const char* linea : {
             "Recibo de salarios de junio de 2005. Elena Ríos\nDías cotizados: 30, trabajados: 20\nI. "
             "DEVENGOS\n",
             "     IT enfermedad común/acc.no laboral .......................         202,99\n"
             "  A. TOTAL DEVENGADO ..........................................       1.206,32\n",
             "     Otras horas extra 4,70 % .................................           4,23\n",
             "\nLÍQUIDO TOTAL A PERCIBIR (A-B) ................................         962,34\n\nBASES",
         })
        EXPECT_NE(texto.find(linea), std::string::npos) << linea << texto;
    EXPECT_EQ(texto.find("EN RECIBO APARTE"), std::string::npos);
}

}  // namespace
}  // namespace orvemo::nomina
