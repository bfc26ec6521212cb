# The Qt that everything is built with. No other CMake file knows its version: they link Qt::Core and
# so on, and call Qt's CMake functions through the macros below.
set(CLOCK_QT 5 CACHE STRING "Qt's major version: 5 or 6")
set_property(CACHE CLOCK_QT PROPERTY STRINGS 5 6)

set(clock_oldest_qt_5 5.10)
set(clock_oldest_qt_6 6.4)
set(clock_development_package_5 qtbase5-dev)
set(clock_development_package_6 qt6-base-dev)
if(NOT DEFINED clock_oldest_qt_${CLOCK_QT})
    message(FATAL_ERROR "CLOCK_QT is \"${CLOCK_QT}\"; it must be 5 or 6")
endif()
set(clock_oldest_qt ${clock_oldest_qt_${CLOCK_QT}})

# Builds for another machine use the tools of the build machine's Qt, which must be of the same
# version: the target's are programs of the target. Qt 5 leaves alone what is known already; Qt 6 is
# told by QT_HOST_PATH.
if(CMAKE_CROSSCOMPILING AND CLOCK_QT EQUAL 5)
    find_program(CLOCK_HOST_QMAKE NAMES qmake qmake-qt5 REQUIRED PATHS /usr/lib/qt5/bin
                 DOC "The build machine's qmake, which tells where the other tools are")

    function(clock_ask_qmake property variable)
        execute_process(COMMAND ${CLOCK_HOST_QMAKE} -query ${property}
                        OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE
                        RESULT_VARIABLE status)
        if(NOT status EQUAL 0)
            message(FATAL_ERROR "${CLOCK_HOST_QMAKE} -query ${property}: ${status}")
        endif()
        set(${variable} ${answer} PARENT_SCOPE)
    endfunction()

    clock_ask_qmake(QT_HOST_BINS host_bins)
    clock_ask_qmake(QT_INSTALL_LIBS host_libraries)
    foreach(tool qmake moc rcc)
        add_executable(Qt5::${tool} IMPORTED)
        set_target_properties(Qt5::${tool} PROPERTIES IMPORTED_LOCATION ${host_bins}/${tool})
    endforeach()
    # These are tools only, so that all of the package is the build machine's.
    set(Qt5LinguistTools_DIR ${host_libraries}/cmake/Qt5LinguistTools)
endif()

# clock_find_qt(COMPONENTS...)
# Makes Qt::COMPONENT of each; older versions of Qt 5 have only names with the version.
macro(clock_find_qt)
    find_package(Qt${CLOCK_QT} ${clock_oldest_qt} REQUIRED COMPONENTS ${ARGV})
    foreach(component IN ITEMS ${ARGV})
        if(TARGET Qt${CLOCK_QT}::${component} AND NOT TARGET Qt::${component})
            add_library(Qt::${component} INTERFACE IMPORTED)
            target_link_libraries(Qt::${component} INTERFACE Qt${CLOCK_QT}::${component})
        endif()
    endforeach()
endmacro()

# As Qt's functions of these names: the first argument is the variable for the files made.
macro(clock_add_translation)
    cmake_language(CALL qt${CLOCK_QT}_add_translation ${ARGV})
endmacro()

macro(clock_add_resources)
    cmake_language(CALL qt${CLOCK_QT}_add_resources ${ARGV})
endmacro()

clock_find_qt(Core Gui Xml Test LinguistTools)

# clock_text_codecs: QTextCodec, for files in encodings that are not Unicode.
# clock_qt_tools: the directory of qtplugininfo and others.
# clock_sizes_exceed_int: sizes of Qt's containers have 64 bits. What the tree counts fits an int, as
# its bounds are checked; other conversions are found when it is built with Qt 5.
add_library(clock_text_codecs INTERFACE)
if(CLOCK_QT EQUAL 6)
    clock_find_qt(Core5Compat)
    target_link_libraries(clock_text_codecs INTERFACE Qt::Core5Compat)
    set(clock_qt_tools ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})
    set(clock_sizes_exceed_int ON)
    # Drops the definitions of each test's directories, or the tests could not share a precompiled
    # header.
    set_property(TARGET Qt6::Test PROPERTY INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
else()
    target_link_libraries(clock_text_codecs INTERFACE Qt::Core)
    get_target_property(clock_qmake Qt5::qmake IMPORTED_LOCATION)
    get_filename_component(clock_qt_tools ${clock_qmake} DIRECTORY)
    set(clock_sizes_exceed_int OFF)
endif()
