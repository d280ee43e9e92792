#include "shell/bibl_txt.h"

#include <gmock/gmock.h>

#include "foundations/values/fallos.h"

namespace orvemo::pruebas {
namespace {

/// The catalogue in one line: subjects with their lines, then books with their subjects and summaries.
std::string contado(const Catalogo& catalogo) {
    std::string texto;
    for (int i = 1; i <= kNumCapitulos; ++i) {
        const Capitulo& capitulo = catalogo.capitulo(i);
        if (capitulo.linea == 0) continue;
        texto += std::to_string(i) + "=" + capitulo.rotulo + "@" + std::to_string(capitulo.linea) + " ";
    }
    for (const Libro& libro : catalogo.libros) {
        texto += "[" + std::to_string(libro.Capitulo) + " " + libro.Titulo + ": " + libro.Resumen + "]";
    }
    return texto;
}

TEST(BiblTxt, LeeElCatalogo) {
    struct Caso {
        const char* cuento;
        std::string contenido;
        std::string catalogo;
    };
    const Caso casos[] = {
        {"subjects and books in any order, letters of 1252",
         "#2 A\xF1os\r\nuno\r\n\r\ndos\r\n#A:2@Jubilaci\xF3n\r\n#1 Otro\r\n#A:1@Uno\r\n#FIN\r\n",
         "1=Uno@7 2=Jubilación@5 [2 Años: uno\r\n\r\ndos\r\n][1 Otro: ]"},
        {"any line end, and none behind the last line", "#1 Uno\na\rb\r\n\n#FIN", "[1 Uno: a\r\nb\r\n\r\n]"},
        {"a last book that nothing closes isn't kept", "#1 Uno\nresumen\n#2 Dos\nsu resumen\n",
         "[1 Uno: resumen\r\n]"},
        {"what stands behind the end isn't read", "#A:1@Uno\n#1 Uno\n#FINAL\n#A:2@Dos\n#x\n",
         "1=Uno@1 [1 Uno: ]"},
        {"a summary before the first book is lost", "perdido\n#1 Uno\nsuyo\n#FIN", "[1 Uno: suyo\r\n]"},
        {"subjects that don't exist are skipped",
         "#A:0@Cero\n#A:9@Nueve\n#A:-1@Menos\n#A:99999999999@Muchos\n#A:8@Ocho", "8=Ocho@5 "},
        {"a subject named twice keeps the last name; only the first @ parts it", "#A:1@Uno\n#A:1@Dos@Tres",
         "1=Dos@Tres@2 "},
        {"the third character says nothing and the title may be missing", "#1xUno\n#2\n#3-\n#FIN",
         "[1 Uno: ][2 : ][3 : ]"},
        {"marks count only where a line begins", "#1 Uno\n #FIN\nx#2\n#FIN", "[1 Uno:  #FIN\r\nx#2\r\n]"},
    };
    for (const Caso& caso : casos) EXPECT_EQ(contado(LeeBibl(caso.contenido)), caso.catalogo) << caso.cuento;
}

TEST(BiblTxt, UnFicheroEstropeadoDiceSuLinea) {
    struct Caso {
        std::string contenido;
        int linea;
        std::string mensaje;
    };
    const std::string noEsCifra = " (el capítulo del libro no es una cifra)";
    const std::string sinArroba = " (falta la arroba tras el número del capítulo)";
    const std::string ilegible = " (el número del capítulo no se puede leer)";
    const Caso casos[] = {
        {"#A:1@Uno\r\n\r\n#1 Uno\r\n# Dos\r\n", 4, noEsCifra},
        {"\n\n#", 3, noEsCifra},
        {"#Fin", 1, noEsCifra},
        {"#\xB2 Dos", 1, noEsCifra},
        {"\r#A:1", 2, sinArroba},
        {"uno\r\n#A:uno@Uno", 2, ilegible},
    };
    for (const Caso& caso : casos) {
        try {
            static_cast<void>(LeeBibl(caso.contenido));
            ADD_FAILURE() << "read: " << caso.contenido;
        } catch (const FicheroMalFormado& fallo) {
            EXPECT_EQ(fallo.linea, caso.linea) << caso.contenido;
            EXPECT_EQ(fallo.what(), "el fichero \"bibl.txt\" no es correcto en la línea " +
                                        std::to_string(caso.linea) + caso.mensaje)
                << caso.contenido;
        }
    }
}

}  // namespace
}  // namespace orvemo::pruebas
