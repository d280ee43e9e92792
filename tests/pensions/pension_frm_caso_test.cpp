#include "pensions/jubilacion/pension_frm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "foundations/values/fallos.h"
#include "pensions/pantalla_jubilacion.h"

namespace orvemo {
namespace {

using testing::ElementsAre;

using CasoJubilacionTest = pruebas::PantallaJubilacion;

TEST_F(CasoJubilacionTest, ARecordOfRubbishIsShownAndNothingFails) {
    mundo.almacen["jubila.nom"] = std::string(2592, '\xFF') + std::string(2592, '\0');
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(frm.JubiFechaNac.texto(), "01-01-1900");
    EXPECT_EQ(frm.JubiRegimen.texto(), "Jubilación Parcial") << "a list goes no further than its last entry";
    EXPECT_EQ(frm.JubiBase(1).texto(), "");
    frm.MuestraPantalla(frm.ultimaPantalla());
    EXPECT_TRUE(frm.Mal.visible());
    frm.DatosCargaRegistro(2);
    EXPECT_EQ(frm.JubiFechaNac.texto(), "30-12-1899");
    EXPECT_EQ(frm.periodos[0].PerDesde.texto(), "");
    frm.MuestraPantalla(frm.ultimaPantalla());
    EXPECT_THAT(frm.textoConclusion(),
                testing::StartsWith("El interesado desea jubilarse a los 0 años.\r\n"));
}

TEST_F(CasoJubilacionTest, TheReportOfTheBasesRunsDownThreeColumns) {
    vaABases();
    for (int i = 1; i <= 180; ++i) frm.JubiBase(i).ponTexto(std::to_string(1000 + i) + ",5");
    ASSERT_TRUE(frm.pulsa(frm.BotonPrint));
    const auto& lineas = mundo.impresora.lineas;
    const auto titulo = std::ranges::find(lineas, "Bases de cotización de los últimos 180 meses:");
    ASSERT_NE(titulo, lineas.end());
    EXPECT_EQ(titulo[1], "01. may-051.001,5061. may-001.061,50121. may-951.121,50");
    EXPECT_EQ(titulo[60], "60. jun-001.060,50120. jun-951.120,50180. jun-901.180,50");
    EXPECT_EQ(titulo[61], "CONCLUSIONES");

    std::vector<std::string> primeraFila;
    for (const pruebas::Operacion& op : mundo.impresora.operaciones) {
        if (op.tipo == pruebas::Operacion::Tipo::Texto && op.pagina == 1 && op.y == 9.0)
            primeraFila.push_back(descripcion(op));
    }
    EXPECT_THAT(primeraFila,
                ElementsAre("Texto 1,9 Arial 12 «01. may-05»", "Texto 4.4,9 Arial 12 «1.001,50»",
                            "Texto 7.5,9 Arial 12 «61. may-00»", "Texto 10.9,9 Arial 12 «1.061,50»",
                            "Texto 14,9 Arial 12 «121. may-95»", "Texto 17.4,9 Arial 12 «1.121,50»"))
        << "the amounts end 5 cm from the start of their column";
}

}  // namespace
}  // namespace orvemo
