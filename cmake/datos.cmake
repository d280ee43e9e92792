# The data files that ship beside the executables. They are gathered in ORVEMO_DATOS, which the batch companion and
# the tests can use as it stands, and installed from there. data/CMakeLists.txt lists them all.
set(ORVEMO_DATOS ${PROJECT_BINARY_DIR}/data)

# What of the shipped files belongs to the user once it is there, relative to the application directory.
define_property(GLOBAL PROPERTY ORVEMO_DEL_USUARIO BRIEF_DOCS "Files that no installation overwrites")
define_property(GLOBAL PROPERTY ORVEMO_FICHEROS BRIEF_DOCS "All shipped data files, where the build leaves them")

# A file of ORVEMO_DATOS, installed in the same place under the application directory.
function(orvemo_instala_dato fichero)
    get_filename_component(carpeta ${fichero} DIRECTORY)
    install(FILES ${ORVEMO_DATOS}/${fichero} DESTINATION ./${carpeta} COMPONENT aplicacion)
    set_property(GLOBAL APPEND PROPERTY ORVEMO_FICHEROS ${ORVEMO_DATOS}/${fichero})
endfunction()

# A file that the user goes on writing: installed only while there is none, whatever the case of its name.
function(orvemo_instala_del_usuario fichero)
    install(CODE "
        include(\"${PROJECT_SOURCE_DIR}/cmake/instala_si_falta.cmake\")
        instala_si_falta(\"${ORVEMO_DATOS}/${fichero}\")"
        COMPONENT aplicacion)
    set_property(GLOBAL APPEND PROPERTY ORVEMO_FICHEROS ${ORVEMO_DATOS}/${fichero})
    set_property(GLOBAL APPEND PROPERTY ORVEMO_DEL_USUARIO ${fichero})
endfunction()

# orvemo_datos_texto(FILE...): files kept as they ship, in the calling folder.
function(orvemo_datos_texto)
    foreach(fichero IN LISTS ARGN)
        add_custom_command(OUTPUT ${ORVEMO_DATOS}/${fichero}
            COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_SOURCE_DIR}/${fichero} ${ORVEMO_DATOS}/${fichero}
            DEPENDS ${fichero} VERBATIM)
        orvemo_instala_dato(${fichero})
    endforeach()
endfunction()

# orvemo_datos_generados(HERRAMIENTA tool [ARGUMENTOS arg...] FICHEROS file... [DEL_USUARIO] [CARPETA folder]
#                        [DEPENDE source...]): files that a tool of the project writes, by these names, into the
# directory it runs in.
function(orvemo_datos_generados)
    cmake_parse_arguments(ARG "DEL_USUARIO" "HERRAMIENTA;CARPETA" "ARGUMENTOS;FICHEROS;DEPENDE" ${ARGN})
    list(TRANSFORM ARG_FICHEROS PREPEND ${ARG_CARPETA}/ OUTPUT_VARIABLE ficheros)
    list(TRANSFORM ficheros REPLACE "^/" "")
    list(TRANSFORM ficheros PREPEND ${ORVEMO_DATOS}/ OUTPUT_VARIABLE salidas)
    file(MAKE_DIRECTORY ${ORVEMO_DATOS}/${ARG_CARPETA})
    add_custom_command(OUTPUT ${salidas}
        COMMAND ${CMAKE_COMMAND} -E rm -f ${salidas}
        # Font and toolkit caches that are never freed are no leak of the tool.
        COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0
                $<TARGET_FILE:${ARG_HERRAMIENTA}> ${ARG_ARGUMENTOS}
        WORKING_DIRECTORY ${ORVEMO_DATOS}/${ARG_CARPETA}
        DEPENDS ${ARG_HERRAMIENTA} ${ARG_DEPENDE} VERBATIM)
    foreach(fichero IN LISTS ficheros)
        if(ARG_DEL_USUARIO)
            orvemo_instala_del_usuario(${fichero})
        else()
            orvemo_instala_dato(${fichero})
        endif()
    endforeach()
endfunction()

# orvemo_datos_manual(FILE): a manual in Markdown as a page for the browser, with the pictures that lie beside it.
function(orvemo_datos_manual manual)
    find_program(CMARK_GFM cmark-gfm REQUIRED)
    get_filename_component(carpeta ${manual} DIRECTORY)
    file(GLOB fotos CONFIGURE_DEPENDS RELATIVE ${carpeta} ${carpeta}/imagenes/*.png)
    list(FILTER fotos EXCLUDE REGEX "-200")  # the same for twice as fine a screen
    foreach(foto IN LISTS fotos)
        add_custom_command(OUTPUT ${ORVEMO_DATOS}/${foto}
            COMMAND ${CMAKE_COMMAND} -E copy ${carpeta}/${foto} ${ORVEMO_DATOS}/${foto}
            DEPENDS ${carpeta}/${foto} VERBATIM)
        orvemo_instala_dato(${foto})
    endforeach()
    add_custom_command(OUTPUT ${ORVEMO_DATOS}/manual.html
        COMMAND ${CMAKE_COMMAND} -D CMARK_GFM=${CMARK_GFM} -D MANUAL=${manual}
                -D PAGINA=${ORVEMO_DATOS}/manual.html -P ${PROJECT_SOURCE_DIR}/cmake/escribe_manual.cmake
        DEPENDS ${manual} ${PROJECT_SOURCE_DIR}/cmake/escribe_manual.cmake
                ${PROJECT_SOURCE_DIR}/cmake/manual.css VERBATIM)
    orvemo_instala_dato(manual.html)
endfunction()

# orvemo_supuestos_de_ejemplo(): the case files of the calculators, which begin with the examples listed before it.
function(orvemo_supuestos_de_ejemplo)
    get_property(ficheros GLOBAL PROPERTY ORVEMO_FICHEROS)
    list(FILTER ficheros INCLUDE REGEX "/ejemplos/[^/]+$")
    foreach(ejemplos IN LISTS ficheros)
        get_filename_component(fichero ${ejemplos} NAME)
        add_custom_command(OUTPUT ${ORVEMO_DATOS}/${fichero}
            COMMAND ${CMAKE_COMMAND} -E copy ${ejemplos} ${ORVEMO_DATOS}/${fichero}
            DEPENDS ${ejemplos} VERBATIM)
        orvemo_instala_del_usuario(${fichero})
    endforeach()
endfunction()

# orvemo_todos_los_datos(): the target "datos", which makes all that was listed before it.
function(orvemo_todos_los_datos)
    get_property(ficheros GLOBAL PROPERTY ORVEMO_FICHEROS)
    add_custom_target(datos ALL DEPENDS ${ficheros})
endfunction()
