# Qt's tools when the build is for another machine: those of the build machine, for the target's are
# programs of the target. Qt's own files leave alone what is known already. Both Qts must be of one
# version.
if(NOT CMAKE_CROSSCOMPILING)
    return()
endif()

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
