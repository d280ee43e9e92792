#include "lote/traslado.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "apoyo/disco.h"
#include "cases/archivo_supuestos.h"
#include "catalogue/catalogo.h"
#include "lote/lineas.h"

namespace orvemo::lote {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class TrasladoTest : public testing::Test {
  protected:
    [[nodiscard]] std::string exportado(const RegistroCatalogo& registro, const char* nombre) const {
        std::ostringstream salida;
        Exporta(registro, lugar / nombre, salida);
        return salida.str();
    }
    bool importa(const RegistroCatalogo& registro, const std::string& lineas) {
        std::istringstream entrada{lineas};
        errores.str({});
        return Importa(registro, lugar / "destino.nom", entrada, errores);
    }

    pruebas::CarpetaTemporal lugar;
    std::ostringstream errores;
};

// Whatever a file holds: cases as the screens write them, NULs, and bytes without sense.
TEST_F(TrasladoTest, WhatIsExportedAndImportedIsTheSameByteForByte) {
    std::minstd_rand azar{2005};
    for (const EntradaCatalogo& entrada : CalculadorasDelPrograma()) {
        if (entrada.registro.forma == nullptr) continue;
        const std::size_t longitud = entrada.registro.longitud;
        std::string bytes(50 * longitud, '\0');
        for (std::size_t i = longitud; i < bytes.size(); ++i) {
            const unsigned clase = static_cast<unsigned>(i / longitud) % 3;
            if (clase == 1) bytes[i] = ' ';
            if (clase == 2 && azar() % 4 > 0) bytes[i] = static_cast<char>(azar() >> 8U);
        }
        for (std::size_t r = 0; r < 50; ++r)
            if (bytes[r * longitud] == kRegistroLibre) bytes[r * longitud] = ' ';
        lugar.pon("origen.nom", bytes);
        fs::remove(lugar / "destino.nom");
        const std::string lineas = exportado(entrada.registro, "origen.nom");
        ASSERT_TRUE(importa(entrada.registro, lineas)) << entrada.clave << errores.str();
        ASSERT_EQ(lugar.contenido("destino.nom"), bytes) << entrada.clave;
        ASSERT_EQ(exportado(entrada.registro, "destino.nom"), lineas);
    }
}

std::string cambiado(std::string linea, const std::string& antes, const std::string& ahora) {
    const auto sitio = linea.find(antes);
    EXPECT_NE(sitio, std::string::npos) << antes;
    return linea.replace(sitio, antes.size(), ahora);
}

const RegistroCatalogo& registroDe(std::string_view clave) {
    return std::ranges::find(CalculadorasDelPrograma(), clave, &EntradaCatalogo::clave)->registro;
}

TEST_F(TrasladoTest, ALineThatIsNoCaseSaysWhichFieldAndWhatWasExpectedAndNothingIsWritten) {
    const std::string linea =
        R"({"Estado":"","NombreSupuesto":"Peña","Nombre":"Ana","Edad":38,"Fecha":"2005-06-13",)"
        R"("fIni":"2005-06-06","Suma":7650.5,"Dias":730,"Hijos":1,"Horas":0,"Parcial":0,"reservado":null})";
    const struct {
        const char* antes;
        const char* ahora;
        const char* dicho;
    } casos[] = {
        {R"("Edad":38)", R"("Edad":38,"Edat":1)", R"(el campo "Edat" no es correcto: no es un campo)"},
        {R"("Edad":38,)", "",
         R"(el campo "Edad" no es correcto: falta; se esperaba un número entero de )"
         "-2147483648 a 2147483647"},
        {R"(:38)", ":2147483648", "se esperaba un número entero de -2147483648 a 2147483647"},
        {R"(:38)", ":38.5", "se esperaba un número entero"},
        {R"(:38)", ":\"38\"", "se esperaba un número entero"},
        {R"(7650.5)", "\"7.650,50\"", R"(el campo "Suma" no es correcto: se esperaba un número)"},
        {R"(7650.5)", "true", "se esperaba un número"},
        {"06-13", "06-31", R"(el campo "Fecha" no es correcto: se esperaba una fecha ("AAAA-MM-DD"))"},
        {"2005-06-13", "13-06-2005", "se esperaba una fecha"},
        {"Peña", "Łódź",
         "un texto de 80 caracteres como mucho y el carácter \"Ł\" no existe en Windows-1252"},
        {R"("reservado":null)", R"("reservado":[])", "un texto de 92 caracteres como mucho"},
        {R"("Estado":"")", R"("Estado":"*")", "\"*\", que es de los huecos"},
        {R"("Estado":"")", R"("Estado":"  ")", "un texto de 1 caracteres como mucho"},
        {"{", "", "no es JSON desde su byte"},
        {R"({"Estado")", R"([{"Estado")", "no es JSON"},
    };
    const RegistroCatalogo& desempleo = registroDe("desempleo");
    for (const auto& [antes, ahora, dicho] : casos) {
        EXPECT_FALSE(importa(desempleo, linea + "\n\n" + cambiado(linea, antes, ahora) + "\n")) << ahora;
        EXPECT_THAT(errores.str(), HasSubstr("Línea 3: ")) << ahora;
        EXPECT_THAT(errores.str(), HasSubstr(dicho)) << ahora;
        EXPECT_FALSE(fs::exists(lugar / "destino.nom"));
    }
    EXPECT_THROW((void)importa(desempleo, std::string(kMaximoLinea + 1, ' ')), Fallo);
    EXPECT_TRUE(importa(desempleo, linea));
    EXPECT_EQ(exportado(desempleo, "destino.nom"), linea + '\n');
}

}  // namespace
}  // namespace orvemo::lote
