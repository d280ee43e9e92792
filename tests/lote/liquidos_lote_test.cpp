#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "apoyo/disco.h"
#include "cases/archivo_supuestos.h"
#include "catalogue/catalogo.h"
#include "foundations/values/almacen.h"
#include "lote/lote.h"
#include "tax/personas.h"

namespace orvemo::lote {
namespace {

/// A case file of withholding with one worker born in 1965 who earns 30000 and depends on nobody.
class LoteDeRetenciones : public testing::Test {
  protected:
    LoteDeRetenciones() {
        DirectorioAplicacion directorio{lugar};
        auto caso = irpf::pruebas::trabajador(30000);
        caso.Nombre.asigna("Ana");
        ArchivoSupuestos{directorio, "RIRPF.nom", irpf::kDiseno.longitud()}.agrega(
            irpf::kDiseno.escribe(caso));
    }

    std::string ejecutaLote(const char* calculadora, int estado = kTodoCalculado) {
        opciones.calculadora = calculadora;
        salida.str({});
        EXPECT_EQ(ejecuta(opciones, CalculadorasDelPrograma(), lugar, salida, errores), estado);
        return salida.str();
    }

    pruebas::CarpetaTemporal lugar;
    Opciones opciones{.fichero = lugar / "RIRPF.nom", .json = true};
    std::ostringstream salida, errores;
};

TEST_F(LoteDeRetenciones, DaElTipoElImporteYLosDemasValores) {
    const std::string linea = ejecutaLote("irpf");
    EXPECT_NE(linea.find("\"tipo\":19.48,\"importe\":5844,\"TipoRetencion\":19.48,"), std::string::npos)
        << linea;
    EXPECT_NE(linea.find("\"NumDescendientes\":0,"), std::string::npos) << linea;
    EXPECT_TRUE(linea.ends_with("\"Exento\":false,\"LimitaTipo\":\"\"}\n")) << linea;
}

TEST_F(LoteDeRetenciones, BuscaElBrutoDeCadaPersona) {
    opciones.liquidos.neto = "1000";
    const std::string linea = ejecutaLote("liquidos");
    EXPECT_TRUE(linea.starts_with("{\"registro\":1,\"supuesto\":\"\",\"nombre\":\"Ana\",\"derecho\":true,"))
        << linea;
    EXPECT_TRUE(
        linea.ends_with("\"resultado\":{\"LiquidosBruto\":\"1.274,67\",\"LiquidosAnual\":\"17.845,38\","
                        "\"Ret\":\"14\",\"iRet\":\"180,24\",\"IRetAnual\":\"2.523,34\",\"iSS\":\"94,43\","
                        "\"iLiq\":\"1.000,00\"}}\n"))
        << linea;
    opciones.liquidos.extra = "244";
    EXPECT_NE(ejecutaLote("liquidos", kAlgunoFallo).find("\"error\":\""), std::string::npos);
    opciones.mandato = Mandato::Exporta;
    ejecutaLote("liquidos", kInservible);
}

}  // namespace
}  // namespace orvemo::lote
