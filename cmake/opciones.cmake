# Options of every target of the project, passed by linking to orvemo_opciones.
add_library(orvemo_opciones INTERFACE)
target_include_directories(orvemo_opciones INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(orvemo_opciones INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
    -Werror
    # Once it optimises, g++ 12 sees texts overlap in a plain assignment of a literal (its bug 105651).
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
    # Amounts of money hang on every rounding: the compiler must not fuse products and sums.
    -ffp-contract=off)

if(ORVEMO_SANITIZE)
    set(vigilantes -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(orvemo_opciones INTERFACE ${vigilantes} $<$<CONFIG:Debug>:-O1>)
    target_link_options(orvemo_opciones INTERFACE ${vigilantes})
else()
    target_compile_definitions(orvemo_opciones INTERFACE
        _GLIBCXX_ASSERTIONS $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
    target_compile_options(orvemo_opciones INTERFACE
        $<$<CONFIG:Release>:-fstack-protector-strong -fstack-clash-protection>)
    target_link_options(orvemo_opciones INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
endif()
if(ORVEMO_FUZZ)
    # Every library counts its branches for the fuzzer; only the fuzz targets bring the fuzzer's own main.
    target_compile_options(orvemo_opciones INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(orvemo_opciones INTERFACE -fsanitize=fuzzer-no-link)
    add_custom_target(fuzz)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT ORVEMO_TIDY)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# orvemo_vigila(NAME): clang-tidy reads what the target compiles. A property of the target and no variable: the headers
# that are compiled alone are read through those who include them, once.
function(orvemo_vigila nombre)
    if(CLANG_TIDY)
        set_target_properties(${nombre} PROPERTIES CXX_CLANG_TIDY "${CLANG_TIDY};--quiet")
    endif()
endfunction()

# orvemo_biblioteca(NAME SOURCES ... LINK ...): one library of the house.
function(orvemo_biblioteca nombre)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${nombre} STATIC ${ARG_SOURCES})
    target_link_libraries(${nombre} PUBLIC orvemo_opciones ${ARG_LINK})
    orvemo_vigila(${nombre})
    if(ORVEMO_TIDY)
        # Each header compiles alone.
        file(GLOB_RECURSE cabeceras CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
        target_sources(${nombre} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tools
                       FILES ${cabeceras})
        set_target_properties(${nombre} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
    endif()
endfunction()

# orvemo_prueba(NAME SOURCES ... LINK ...): one GoogleTest executable, its tests listed to CTest. The whole of it
# runs again under the locales in which a decimal point becomes a comma or back: figures must not depend on them. As
# one process it is quick: "ctest -L rapido" runs all of them so.
function(orvemo_prueba nombre)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${nombre} ${ARG_SOURCES})
    target_link_libraries(${nombre} PRIVATE
        orvemo_opciones pruebas_apoyo pruebas_principal ${ARG_LINK} GTest::gmock)
    gtest_discover_tests(${nombre} DISCOVERY_MODE PRE_TEST)
    add_test(NAME ${nombre}.rapido COMMAND ${nombre} --gtest_brief=1)
    set_tests_properties(${nombre}.rapido PROPERTIES LABELS rapido)
    foreach(locale IN ITEMS es_ES.UTF-8 en_US.UTF-8)
        add_test(NAME ${nombre}.${locale} COMMAND ${nombre})
        set_tests_properties(${nombre}.${locale} PROPERTIES
            ENVIRONMENT ORVEMO_LOCALE=${locale} SKIP_RETURN_CODE 77)
    endforeach()
endfunction()

# orvemo_prueba_qt(NAME SOURCES ... LINK ...): the same with an application over the offscreen platform.
function(orvemo_prueba_qt nombre)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${nombre} ${ARG_SOURCES})
    target_link_libraries(${nombre} PRIVATE
        orvemo_opciones pruebas_apoyo pruebas_principal_qt ${ARG_LINK} Qt6::Test GTest::gmock)
    gtest_discover_tests(${nombre} DISCOVERY_MODE PRE_TEST)
endfunction()

# orvemo_fuzz(NAME SOURCES ... LINK ...): one libFuzzer executable, built by the target "fuzz".
function(orvemo_fuzz nombre)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${nombre} ${ARG_SOURCES})
    target_link_libraries(${nombre} PRIVATE orvemo_opciones ${ARG_LINK})
    target_link_options(${nombre} PRIVATE -fsanitize=fuzzer)
    add_dependencies(fuzz ${nombre})
endfunction()
