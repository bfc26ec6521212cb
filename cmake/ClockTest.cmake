# clock_add_test(NAME sources... [LIBRARIES libraries...] [LABELS labels...])
# One Qt Test executable, run by CTest without a display, at 96 dpi, in UTC and the C locale. Its
# reference pictures stand beside it in the source tree.
function(clock_add_test name)
    cmake_parse_arguments(arg "" "" "LIBRARIES;LABELS" ${ARGN})
    add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} Qt5::Test clock_warnings)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
    target_compile_definitions(${name} PRIVATE
        CLOCK_REFERENCE_DIR="${CMAKE_CURRENT_SOURCE_DIR}/reference"
        CLOCK_DIFFERENCE_DIR="${CMAKE_CURRENT_BINARY_DIR}/difference")
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FONT_DPI=96;LC_ALL=C.UTF-8;TZ=UTC"
        TIMEOUT 300
        LABELS "${arg_LABELS}")
endfunction()
