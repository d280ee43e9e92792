#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "apoyo/entorno_falso.h"
#include "apoyo/vista_falsa.h"
#include "foundations/frame/asistente.h"

namespace orvemo::pruebas {

/// A calculator as the menu opens it, on 15-06-2005, and the user who fills it in.
template <typename Frm>
class PantallaAbierta : public testing::Test {
  protected:
    PantallaAbierta() {
        frm.ponVista(&vista);
        frm.Inicia();
    }

    /// The user goes to the field and types.
    void escribe(Campo& campo, std::string_view texto) {
        ASSERT_TRUE(frm.foco(campo)) << campo.def().nombre;
        frm.escribe(campo, texto);
    }

    /// The same, and leaves it.
    void rellena(Campo& campo, std::string_view texto) {
        escribe(campo, texto);
        ASSERT_TRUE(frm.foco(frm.Nombre)) << campo.def().nombre;
    }

    /// Makes these dates bad, the last one first: `Siguiente` tells each before those that were bad already
    /// and takes the focus there; nothing is said on leaving them. They end as 25-09-2005.
    void compruebaFechas(std::vector<std::pair<Campo*, const char*>> fechas, const char* mala) {
        std::ranges::reverse(fechas);
        for (const auto& [fecha, mensaje] : fechas) {
            rellena(*fecha, mala);
            EXPECT_THAT(mundo.mensajes.dichos, testing::IsEmpty());
            EXPECT_TRUE(frm.pulsa(frm.Siguiente));
            EXPECT_THAT(mundo.mensajes.dichos, testing::ElementsAre(mensaje));
            EXPECT_EQ(frm.actual(), fecha);
            EXPECT_EQ(frm.PantallaActual(), 0);
            mundo.mensajes.dichos.clear();
        }
        for (const auto& [fecha, mensaje] : fechas) rellena(*fecha, "25/9/05");
    }

    /// What the file of cases holds after the case was saved under that name.
    const std::string& graba(const char* nombre) {
        vista.alGrabar = [nombre](GrabaSupuesto& dialogo) {
            dialogo.ponNombre(nombre);
            dialogo.BotonGrabar();
        };
        EXPECT_TRUE(frm.pulsa(frm.BotonGraba));
        return mundo.almacen[frm.fichero()];
    }

    /// The conclusions of the case on screen.
    const std::string& concluye() {
        EXPECT_TRUE(frm.pulsa(frm.Siguiente));
        return frm.textoConclusion();
    }

    EntornoFalso mundo;
    VistaFalsa vista;
    Frm frm{mundo.entorno};
};

}  // namespace orvemo::pruebas
