# Runs kelvora-cli with ARGUMENTOS (a list), standard input from ENTRADA when given, and checks
# the exit status (SALIDA) and that standard output and error together match PATRON.
set(entrada)
if(DEFINED ENTRADA)
    set(entrada INPUT_FILE ${ENTRADA})
endif()
execute_process(COMMAND ${CLI} ${ARGUMENTOS} ${entrada}
        RESULT_VARIABLE salida OUTPUT_VARIABLE texto ERROR_VARIABLE errores)
if(NOT salida EQUAL SALIDA)
    message(FATAL_ERROR "kelvora-cli terminó con ${salida}, no ${SALIDA}:\n${errores}\n${texto}")
endif()
if(NOT "${texto}${errores}" MATCHES "${PATRON}")
    message(FATAL_ERROR "No aparece «${PATRON}» en:\n${texto}${errores}")
endif()
