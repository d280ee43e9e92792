# Options of every target of the project, passed by linking to orvemo_opciones.
add_library(orvemo_opciones INTERFACE)
target_include_directories(orvemo_opciones INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(orvemo_opciones INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
    -Werror
    # Amounts of money hang on every rounding: the compiler must not fuse products and sums.
    -ffp-contract=off)

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# orvemo_biblioteca(NAME SOURCES ... LINK ...): one library of the house.
function(orvemo_biblioteca nombre)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${nombre} STATIC ${ARG_SOURCES})
    target_link_libraries(${nombre} PUBLIC orvemo_opciones ${ARG_LINK})
endfunction()

# orvemo_prueba(NAME SOURCES ... LINK ...): one GoogleTest executable, its tests listed to CTest.
function(orvemo_prueba nombre)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${nombre} ${ARG_SOURCES})
    target_link_libraries(${nombre} PRIVATE orvemo_opciones pruebas_apoyo ${ARG_LINK} GTest::gmock GTest::gtest_main)
    gtest_discover_tests(${nombre} DISCOVERY_MODE PRE_TEST)
endfunction()
