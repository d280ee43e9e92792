#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/entorno_falso.h"
#include "apoyo/vista_falsa.h"
#include "foundations/frame/calculadora.h"

namespace orvemo::pruebas {

/// A screen of the leave benefits as the menu opens it, on 15-06-2005, and the user who fills it in.
template <typename Frm>
class PantallaDeBaja : public testing::Test {
  protected:
    PantallaDeBaja() {
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

    /// The fields on view of panel 0 that come after the ones that never hide.
    [[nodiscard]] std::vector<std::string> aLaVista(std::initializer_list<const char*> fijos) const {
        std::vector<std::string> nombres;
        for (const Campo& campo : frm.campos()) {
            const bool esFijo = std::ranges::find(fijos, campo.def().nombre) != fijos.end();
            if (campo.pantalla() == 0 && campo.visible() && !esFijo) nombres.push_back(campo.def().nombre);
        }
        return nombres;
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

/// The whole number that lies at that byte of a record.
inline std::int32_t enteroEn(std::string_view bytes, std::size_t posicion) {
    std::int32_t numero = 0;
    std::memcpy(&numero, bytes.substr(posicion, sizeof numero).data(), sizeof numero);
    return numero;
}

/// The double, or date in days since 30-12-1899, that lies at that byte of a record.
inline double dobleEn(std::string_view bytes, std::size_t posicion) {
    double numero = 0;
    std::memcpy(&numero, bytes.substr(posicion, sizeof numero).data(), sizeof numero);
    return numero;
}

}  // namespace orvemo::pruebas
