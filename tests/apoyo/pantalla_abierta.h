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

    /// Title, caption, case file and the subtitles of the first and the last panel.
    std::vector<std::string> cabecera() {
        std::vector<std::string> textos{frm.Titulo(), frm.Caption(), frm.fichero(), frm.Subtitulo()};
        concluye();
        textos.push_back(frm.Subtitulo());
        return textos;
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

    void rellena(std::initializer_list<std::pair<Campo*, const char*>> campos) {
        for (const auto& [campo, texto] : campos) rellena(*campo, texto);
    }

    /// The fields on view of panel 0, without the ones that never hide.
    [[nodiscard]] std::vector<std::string> aLaVista(std::initializer_list<const char*> fijos) const {
        std::vector<std::string> nombres;
        for (const Campo& campo : frm.campos()) {
            const bool esFijo = std::ranges::find(fijos, campo.def().nombre) != fijos.end();
            if (campo.pantalla() == 0 && campo.visible() && !esFijo) nombres.push_back(campo.def().nombre);
        }
        return nombres;
    }

    /// The limits of each number on view, as its refusal tells them: "Edad 1 y 99".
    std::vector<std::string> limites() {
        const std::string aviso = "Error: El número no es correcto. Debe introducir un número entre ";
        std::vector<std::string> todos;
        for (Campo& campo : frm.campos()) {
            if (campo.pantalla() != 0 || !campo.visible() || !campo.def().filtro) continue;
            const std::string antes = campo.texto();
            mundo.mensajes.dichos.assign(1, aviso);
            escribe(campo, "9999999999");
            EXPECT_FALSE(frm.foco(frm.Nombre)) << campo.def().nombre;
            const std::string rango = mundo.mensajes.dichos.back().substr(aviso.size());
            todos.push_back(campo.def().nombre + " " + rango);
            rellena(campo, rango.substr(0, rango.find(' ')));
            campo.ponTexto(antes);
        }
        mundo.mensajes.dichos.clear();
        return todos;
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

    /// Saves the case, clears the screen, loads it: every field is as it was. Gives the bytes of the record.
    std::string vaYVuelve(const char* nombre) {
        const std::vector<std::string> antes = valores();
        const std::string bytes = graba(nombre);
        EXPECT_TRUE(frm.pulsa(frm.BotonNuevo));
        EXPECT_NE(valores(), antes);
        frm.DatosCargaRegistro(1);
        EXPECT_THAT(valores(), testing::ElementsAreArray(antes));
        EXPECT_EQ(frm.NombreActual(), nombre);
        EXPECT_EQ(frm.PantallaActual(), 0);
        return bytes;
    }

    /// The conclusions of the case on screen.
    const std::string& concluye() {
        EXPECT_TRUE(frm.pulsa(frm.Siguiente));
        return frm.textoConclusion();
    }

    /// The lines of the report of what stands on screen.
    const std::vector<std::string>& imprime() {
        mundo.impresora.lineas.clear();
        EXPECT_TRUE(frm.pulsa(frm.BotonPrint));
        return mundo.impresora.lineas;
    }

    EntornoFalso mundo;
    VistaFalsa vista;
    Frm frm{mundo.entorno};

  private:
    /// Name, value and presence of every field of panel 0.
    [[nodiscard]] std::vector<std::string> valores() const {
        std::vector<std::string> todos;
        for (const Campo& campo : frm.campos()) {
            if (campo.pantalla() != 0) continue;
            todos.push_back(campo.def().nombre + (campo.visible() ? ": " : " (oculto): ") + campo.texto() +
                            (campo.marcado() ? "x" : ""));
        }
        return todos;
    }
};

/// What lies at those bytes of a record.
template <typename T>
std::vector<T> numerosEn(std::string_view bytes, std::initializer_list<std::size_t> posiciones) {
    std::vector<T> numeros;
    for (const std::size_t posicion : posiciones) {
        std::memcpy(&numeros.emplace_back(), bytes.substr(posicion, sizeof(T)).data(), sizeof(T));
    }
    return numeros;
}

inline std::vector<std::int32_t> enterosEn(std::string_view bytes,
                                           std::initializer_list<std::size_t> posiciones) {
    return numerosEn<std::int32_t>(bytes, posiciones);
}

/// Doubles, dates among them: days since 30-12-1899.
inline std::vector<double> doblesEn(std::string_view bytes, std::initializer_list<std::size_t> posiciones) {
    return numerosEn<double>(bytes, posiciones);
}

}  // namespace orvemo::pruebas
