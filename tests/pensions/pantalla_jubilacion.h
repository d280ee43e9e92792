#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/entorno_falso.h"
#include "apoyo/vista_falsa.h"
#include "pensions/jubilacion/pension_frm.h"

namespace orvemo::pruebas {

/// The text of an "ipc.txt" in which prices stood still.
[[nodiscard]] inline std::string ipcPlano() {
    std::string texto;
    for (int anio = 1984; anio <= 2004; ++anio) {
        texto += "x\n";
        for (int mes = 1; mes <= 12; ++mes) texto += "x\tx\t100\n";
    }
    return texto;
}

/// The screen as the menu opens it, on 15-06-2005, with the bases to come on offer.
class PantallaJubilacion : public testing::Test {
  protected:
    PantallaJubilacion() {
        mundo.almacen["ipc.txt"] = ipcPlano();
        mundo.valores.VerBaseActual = true;
        frm.ponVista(&vista);
        frm.Inicia();
    }

    void escribe(Campo& campo, const char* texto) {
        ASSERT_TRUE(frm.foco(campo)) << campo.def().nombre;
        frm.escribe(campo, texto);
    }

    void sigue(int veces = 1) {
        for (int i = 0; i < veces; ++i) ASSERT_TRUE(frm.pulsa(frm.Siguiente));
    }

    /// Goes from the data to the first panel of bases of a case that tells them one by one.
    void vaABases() {
        sigue(2);
        frm.marca(frm.JubiBasesDesglosadas, true);
        sigue();
    }

    /// A person who is 65 on 15-06-2005 and contributed since 1970.
    void rellena() {
        escribe(frm.JubiNombre, "María Ñúñez");
        escribe(frm.JubiFechaNac, "15-06-1940");
        escribe(frm.JubiFechaJub, "15-06-2005");
        sigue();
        escribe(frm.periodos[0].PerDesde, "1/1/1970");
        escribe(frm.periodos[0].PerHasta, "31/5/2005");
        escribe(frm.periodos[0].PerEmpresa, "Fábrica de Hilos");
        sigue();
        escribe(frm.JubiSumaBases, "210000");
    }

    void graba() {
        vista.alGrabar = [](GrabaSupuesto& dialogo) {
            dialogo.ponNombre("Caso 1");
            dialogo.BotonGrabar();
        };
        ASSERT_TRUE(frm.pulsa(frm.BotonGraba));
    }

    /// Texts of the lines from one to another.
    std::vector<std::string> bases(int desde, int hasta) {
        std::vector<std::string> textos;
        for (int i = desde; i <= hasta; ++i) textos.push_back(frm.JubiBase(i).texto());
        return textos;
    }

    EntornoFalso mundo;
    VistaFalsa vista;
    PensionFrm frm{mundo.entorno};
};

}  // namespace orvemo::pruebas
