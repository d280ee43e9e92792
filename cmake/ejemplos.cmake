# orvemo_ejemplos(CALCULATOR file [CARPETA folder] [DEL_USUARIO]): the case file of ejemplos/CALCULATOR.jsonl, a case a
# line, in the calling folder. It goes through the batch's import and so through the program's own codec.
function(orvemo_ejemplos calculadora fichero)
    cmake_parse_arguments(ARG "DEL_USUARIO" "CARPETA" "" ${ARGN})
    if(ARG_CARPETA)
        set(fichero ${ARG_CARPETA}/${fichero})
        file(MAKE_DIRECTORY ${ORVEMO_DATOS}/${ARG_CARPETA})
    endif()
    set(texto ${CMAKE_CURRENT_SOURCE_DIR}/ejemplos/${calculadora}.jsonl)
    set(guion ${PROJECT_SOURCE_DIR}/cmake/importa_ejemplos.cmake)
    add_custom_command(OUTPUT ${ORVEMO_DATOS}/${fichero}
        COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0
                ${CMAKE_COMMAND} -DLOTE=$<TARGET_FILE:orvemo-lote> -DCALCULADORA=${calculadora}
                -DTEXTO=${texto} -DFICHERO=${ORVEMO_DATOS}/${fichero} -P ${guion}
        DEPENDS orvemo-lote ${texto} ${guion} VERBATIM)
    if(ARG_DEL_USUARIO)
        orvemo_instala_del_usuario(${fichero})
    else()
        orvemo_instala_dato(${fichero})
    endif()
endfunction()
