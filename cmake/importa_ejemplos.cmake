# Writes a case file from its cases as text: cmake -DLOTE=... -DCALCULADORA=... -DTEXTO=... -DFICHERO=... -P this.
# The batch takes them from its standard input, through the codec that writes every other case.
file(REMOVE ${FICHERO})
execute_process(COMMAND ${LOTE} importa ${CALCULADORA} ${FICHERO} INPUT_FILE ${TEXTO} RESULT_VARIABLE estado)
if(NOT estado EQUAL 0)
    message(FATAL_ERROR "${TEXTO} holds no cases of ${CALCULADORA}")
endif()
