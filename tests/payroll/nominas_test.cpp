// Whole payslips as documents: "nominas.txt" tells what a month was and what came of it.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>
#include <type_traits>

#include "foundations/values/formatos.h"
#include "foundations/values/textos.h"
#include "payroll/caso/calcula_nomina.h"
#include "payroll/documento_nominas.h"

namespace orvemo::nomina {
namespace {

template <typename T>
std::string texto(const T& valor) {
    if constexpr (std::is_same_v<T, std::string>) {
        return std::string{Recorta(valor)};
    } else if constexpr (std::is_same_v<T, bool>) {
        return valor ? "sí" : "no";
    } else if constexpr (std::is_same_v<T, Fecha>) {
        return FormatoFecha(valor, "dd-MM-yyyy");
    } else {
        return TextoPlano(static_cast<double>(valor));
    }
}

struct ATexto {
    std::map<std::string, std::string> campos{};

    template <typename T>
    void operator()(std::string_view nombre, const T& valor) {
        campos[std::string{nombre}] = texto(valor);
    }
    /// What a list holds, up to its last element that isn't empty.
    template <typename T, std::size_t N>
    void operator()(std::string_view nombre, const std::array<T, N>& lista) {
        std::string& todos = campos[std::string{nombre}];
        for (const T& valor : lista)
            if (!(valor == T{})) todos += (todos.empty() ? "" : " ") + texto(valor);
    }
};

TEST(Nominas, EachMonthComesOutAsWorkedOutByHand) {
    const Documento documento = leeDocumento();
    ASSERT_FALSE(documento.historias.empty());
    const TablasNomina tablas = documento.tablas();
    for (const Historia& historia : documento.historias) {
        SCOPED_TRACE(historia.titulo);
        EstadoNomina estado;
        const auto mensaje = CalculaSupuesto(historia.registro, tablas, estado);
        EXPECT_EQ(mensaje, historia.fallo ? kDatoIncorrecto : "");
        ATexto hay;
        CadaCampo(estado, [&](std::string_view nombre, const auto& valor) { hay(nombre, valor); });
        for (const auto& [nombre, valor] : historia.espera) EXPECT_EQ(hay.campos[nombre], valor) << nombre;
    }
}

}  // namespace
}  // namespace orvemo::nomina
