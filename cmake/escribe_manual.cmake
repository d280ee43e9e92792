# Run at build time: writes PAGINA, the MANUAL as one page with its style and, after the title, a list of its chapters.
execute_process(COMMAND ${CMARK_GFM} --extension table --unsafe ${MANUAL}
    OUTPUT_VARIABLE cuerpo COMMAND_ERROR_IS_FATAL ANY)
file(READ ${CMAKE_CURRENT_LIST_DIR}/manual.css estilo)

# No text of the page may be taken for a list.
string(REPLACE ";" "&#59;" cuerpo "${cuerpo}")
string(REGEX MATCHALL "<h2>[^\n]*</h2>" capitulos "${cuerpo}")
set(numero 0)
set(indice "")
foreach(capitulo IN LISTS capitulos)
    math(EXPR numero "${numero} + 1")
    string(REGEX REPLACE "</?h2>" "" titulo "${capitulo}")
    string(APPEND indice "<li><a href=\"#c${numero}\">${titulo}</a></li>\n")
    string(REPLACE "${capitulo}" "<h2 id=\"c${numero}\">${titulo}</h2>" cuerpo "${cuerpo}")
endforeach()
string(REPLACE "</h1>\n" "</h1>\n<nav><ul>\n${indice}</ul></nav>\n" cuerpo "${cuerpo}")
string(REGEX MATCH "<h1>([^<]*)</h1>" encontrado "${cuerpo}")
set(titulo "${CMAKE_MATCH_1}")

set(pagina "<!DOCTYPE html>
<html lang=\"es\">
<head>
<meta charset=\"utf-8\">
<meta name=\"viewport\" content=\"width=device-width\">
<title>${titulo}</title>
<style>
${estilo}</style>
</head>
<body>
${cuerpo}</body>
</html>
")
string(REPLACE "&#59;" ";" pagina "${pagina}")
file(WRITE ${PAGINA} "${pagina}")
