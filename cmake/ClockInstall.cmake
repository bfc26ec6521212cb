# What is installed where. Programs look for plugins and style pictures beside their own folder, so
# they stand together in one tree of the same shape as the build's, with links to them in bin.
#
# Two components: "runtime" is what plays, "development" is what another project needs to build a
# host. Every path is relative: the tree runs wherever it is put.
set(CLOCK_INSTALL_ROOT lib/clock-player)
set(CLOCK_INSTALL_DOC share/doc/clock-player)

# Builds what the runtime component installs, and nothing else; and what all components install.
add_custom_target(clock_runtime)
add_custom_target(clock_packages)
add_dependencies(clock_packages clock_runtime)

# clock_install_compressed(FILE FOLDER NAME [COMPONENT])
# NAME.gz in the folder, as Debian wants changelogs and manual pages: compressed most, without a time
# stamp.
function(clock_install_compressed file folder name)
    find_program(CLOCK_GZIP gzip REQUIRED)
    set(compressed ${PROJECT_BINARY_DIR}/packaging/${name}.gz)
    add_custom_command(OUTPUT ${compressed}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/packaging
        COMMAND ${CLOCK_GZIP} -9nc ${file} > ${compressed}
        DEPENDS ${file}
        VERBATIM)
    add_custom_target(compressed_${name} ALL DEPENDS ${compressed})
    set(component runtime ${ARGN})
    list(GET component -1 component)
    add_dependencies(clock_packages compressed_${name})
    if(component STREQUAL runtime)
        add_dependencies(clock_runtime compressed_${name})
    endif()
    install(FILES ${compressed} DESTINATION ${folder} COMPONENT ${component})
endfunction()

# clock_install_link(LINK TO COMPONENT)
# A symbolic link, both paths relative: LINK to the prefix, TO to the link's own folder.
function(clock_install_link link to component)
    get_filename_component(folder ${link} DIRECTORY)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/links/${folder})
    file(CREATE_LINK ${to} ${PROJECT_BINARY_DIR}/links/${link} SYMBOLIC)
    install(FILES ${PROJECT_BINARY_DIR}/links/${link} DESTINATION ${folder} COMPONENT ${component})
endfunction()

# clock_install_program(TARGET [COMPONENT])
# The program, and a link to it in bin.
function(clock_install_program target)
    set(component runtime ${ARGN})
    list(GET component -1 component)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
    add_dependencies(clock_packages ${target})
    if(component STREQUAL runtime)
        add_dependencies(clock_runtime ${target})
    endif()
    install(TARGETS ${target}
        RUNTIME DESTINATION ${CLOCK_INSTALL_ROOT}/bin COMPONENT ${component})
    clock_install_link(bin/${target} ../${CLOCK_INSTALL_ROOT}/bin/${target} ${component})
endfunction()

# clock_install()
# All but the style pictures, which image/ installs. Called when every target is known.
function(clock_install)
    foreach(program clock_player clock_tool)
        if(TARGET ${program})
            clock_install_program(${program})
        endif()
    endforeach()
    add_dependencies(clock_runtime clock_plugin clock_style_pictures)
    install(TARGETS clock_plugin
        LIBRARY DESTINATION ${CLOCK_INSTALL_ROOT}/plugins COMPONENT runtime NAMELINK_SKIP)
    install(DIRECTORY examples DESTINATION ${CLOCK_INSTALL_DOC} COMPONENT runtime
        USE_SOURCE_PERMISSIONS FILES_MATCHING PATTERN "*.xml" PATTERN "release"
            PATTERN "metrics")
    # bash finds the completion of a command by its name; one file has both.
    install(FILES packaging/completion/clock_player
        DESTINATION share/bash-completion/completions COMPONENT runtime)
    clock_install_link(share/bash-completion/completions/clock_tool clock_player runtime)
    install(FILES packaging/clock-player.service
        DESTINATION lib/systemd/system COMPONENT runtime)
    install(DIRECTORY docs/ DESTINATION ${CLOCK_INSTALL_DOC} COMPONENT runtime
        FILES_MATCHING PATTERN "*.md" PATTERN "program.rng" PATTERN "*.svg" PATTERN "*.cpp"
            REGEX "/examples/CMakeLists\\.txt$")
    clock_install_host()
    if(TARGET clock_studio)
        clock_install_studio()
    endif()
endfunction()

# The stand-in host's library is the programs' own, so it stays within their tree; its link for the
# linker, the headers and the files for find_package(clock-player) are for development.
function(clock_install_host)
    add_dependencies(clock_packages lw_host)
    install(TARGETS lw_host EXPORT clock-player-targets
        LIBRARY DESTINATION ${CLOCK_INSTALL_ROOT}/lib
        COMPONENT runtime NAMELINK_COMPONENT development)
    install(DIRECTORY host/ DESTINATION include/clock-player COMPONENT development
        FILES_MATCHING PATTERN "*_p.h" EXCLUDE PATTERN "*.h")

    include(CMakePackageConfigHelpers)
    set(config_folder lib/cmake/clock-player)
    set(plugin_folder ${CLOCK_INSTALL_ROOT}/plugins)
    set(picture_folder ${CLOCK_INSTALL_ROOT}/image/ClockType)
    set(config ${PROJECT_BINARY_DIR}/clock-playerConfig.cmake)
    configure_package_config_file(cmake/clock-playerConfig.cmake.in ${config}
        INSTALL_DESTINATION ${config_folder}
        PATH_VARS plugin_folder picture_folder)
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/clock-playerConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES ${config} ${PROJECT_BINARY_DIR}/clock-playerConfigVersion.cmake
        DESTINATION ${config_folder} COMPONENT development)
    install(EXPORT clock-player-targets NAMESPACE ClockPlayer::
        DESTINATION ${config_folder} COMPONENT development)
endfunction()
