# Builds for another machine: how their programs are run, and so what tests start in their turn (see
# tests/support/start_program.h). Empty where nothing is emulated.
set(clock_emulator)
if(CMAKE_CROSSCOMPILING_EMULATOR)
    add_library(emulated_processes SHARED
        ${PROJECT_SOURCE_DIR}/tests/support/emulation/emulated_processes.cpp)
    target_link_libraries(emulated_processes PRIVATE clock_warnings ${CMAKE_DL_LIBS})
    list(APPEND CMAKE_CROSSCOMPILING_EMULATOR
        -E LD_PRELOAD=${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/libemulated_processes.so)
    list(JOIN CMAKE_CROSSCOMPILING_EMULATOR ":" clock_emulator)
endif()

# What every test includes, read once. Tests are not optimised much: they take longer to build than
# to run.
function(clock_precompile_test_headers)
    set(source ${CMAKE_BINARY_DIR}/clock_test_headers.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "#include <QtTest>\n")
    add_library(clock_test_headers OBJECT ${source})
    target_link_libraries(clock_test_headers PUBLIC Qt::Gui Qt::Xml Qt::Test)
    target_compile_options(clock_test_headers PUBLIC $<$<CONFIG:Release>:-O1>)
    target_precompile_headers(clock_test_headers PRIVATE <QtTest>)
    set_target_properties(clock_test_headers PROPERTIES AUTOMOC OFF)
endfunction()

# Locales whose digits are not ASCII's, for LOCALES of the tests that write or read texts of times.
# Qt goes by the name; the system need not have them.
set(clock_other_digits fa_IR.UTF-8 ar_EG.UTF-8)

# clock_add_test(NAME sources... [LIBRARIES libraries...] [LABELS labels...] [LOCALES locales...])
# One Qt Test executable, run by CTest without a display, at 96 dpi, in UTC and the C locale; then
# once more in each of the locales, as NAME.fa_IR and so on. Its reference pictures stand beside it
# in the source tree. The label "native" leaves it out where another machine is emulated; say why
# beside it.
function(clock_add_test name)
    cmake_parse_arguments(arg "" "" "LIBRARIES;LABELS;LOCALES" ${ARGN})
    if(NOT TARGET clock_test_headers)
        clock_precompile_test_headers()
    endif()
    add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} Qt::Gui Qt::Xml Qt::Test clock_warnings)
    target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O1>)
    target_precompile_headers(${name} REUSE_FROM clock_test_headers)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
    target_compile_definitions(${name} PRIVATE
        CLOCK_REFERENCE_DIR="${CMAKE_CURRENT_SOURCE_DIR}/reference"
        CLOCK_DIFFERENCE_DIR="${CMAKE_CURRENT_BINARY_DIR}/difference")
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    # Emulated processes are not started without their help.
    if(TARGET emulated_processes)
        add_dependencies(${name} emulated_processes)
    endif()
    clock_run_test(${name} ${name} C.UTF-8 "${arg_LABELS}")
    foreach(locale IN LISTS arg_LOCALES)
        string(REGEX REPLACE "[.].*" "" language ${locale})
        clock_run_test(${name}.${language} ${name} ${locale} "${arg_LABELS}")
    endforeach()
endfunction()

function(clock_run_test test program locale labels)
    add_test(NAME ${test} COMMAND ${program})
    set(environment QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96 LC_ALL=${locale} TZ=UTC
        ${CLOCK_RUN_ENVIRONMENT})
    if(clock_emulator)
        list(APPEND environment CLOCK_EMULATOR=${clock_emulator})
    endif()
    set_tests_properties(${test} PROPERTIES
        ENVIRONMENT "${environment}"
        TIMEOUT 300
        LABELS "${labels}")
    # Emulation is slow.
    if(TARGET emulated_processes)
        set_tests_properties(${test} PROPERTIES
            REQUIRED_FILES $<TARGET_FILE:emulated_processes>
            TIMEOUT 900)
    endif()
endfunction()
