# What is installed of the studio: a component of its own, so that devices need no widgets.
function(clock_install_studio)
    clock_install_program(clock_studio studio)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/studio/clock-studio.desktop
        DESTINATION share/applications COMPONENT studio)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/studio/clock-studio.metainfo.xml
        DESTINATION share/metainfo RENAME org.example.clock_studio.metainfo.xml COMPONENT studio)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/studio/clock-studio-mime.xml
        DESTINATION share/mime/packages RENAME clock-studio.xml COMPONENT studio)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/studio/clock-studio.svg
        DESTINATION share/icons/hicolor/scalable/apps COMPONENT studio)
    clock_install_compressed(
        ${PROJECT_SOURCE_DIR}/packaging/studio/clock_studio.1 share/man/man1 clock_studio.1 studio)
    # It shares completion and documentation with the package that it depends on.
    clock_install_link(share/bash-completion/completions/clock_studio clock_player studio)
    clock_install_link(share/doc/clock-studio clock-player studio)
endfunction()

# What is packaged of it.
macro(clock_package_studio full_version)
    list(APPEND CPACK_COMPONENTS_ALL studio)
    set(CPACK_DEBIAN_STUDIO_PACKAGE_NAME clock-studio)
    set(CPACK_DEBIAN_STUDIO_PACKAGE_SECTION graphics)
    set(CPACK_COMPONENT_STUDIO_DESCRIPTION "editor for walls of clocks
Designs walls of clocks for LED screens by looking: clocks are drawn on
the wall, moved and set, and the wall shows the very frames that the
player will show. Time zones are chosen by city, programs are checked as
they arise, and sent to a wall.")
    set(CPACK_DEBIAN_STUDIO_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_STUDIO_PACKAGE_DEPENDS "clock-player (= ${full_version})")
    set(CPACK_DEBIAN_STUDIO_PACKAGE_RECOMMENDS "imagemagick, openssh-client, rsync, tzdata")
endmacro()
