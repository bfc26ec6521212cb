# Debian packages, made by "cpack" in the build directory: clock-player has all that plays,
# clock-player-dev what another project needs to build a host.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME clock-player)
set(CPACK_PACKAGE_VENDOR "Clock plugin developers")
set(CPACK_PACKAGE_CONTACT "Clock plugin developers <clock@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_OUTPUT_FILE_PREFIX packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(full_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
# Otherwise the architecture is the build machine's.
if(CMAKE_CROSSCOMPILING AND CMAKE_LIBRARY_ARCHITECTURE STREQUAL arm-linux-gnueabihf)
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE armhf)
    # What the packages depend on is told by the sysroot's packages, not by the build machine's.
    set(CPACK_CLOCK_SHLIBDEPS ${PROJECT_BINARY_DIR}/packaging/dpkg-shlibdeps)
    set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/ClockCrossPackages.cmake)
    configure_file(cmake/dpkg-shlibdeps.in ${CPACK_CLOCK_SHLIBDEPS} @ONLY
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
endif()

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME clock-player)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION video)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "clocks for LED walls, and a player for them
A Qt plugin that shows digital, analog and picture clocks on LED walls,
each in its own time zone and with its own daylight-saving rule, with
Gregorian, Chinese lunar and Persian dates.
.
This package has the plugin, a library that stands in for a display's
host, and clock_player, which plays content programs in a window or into
PNG frames.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "fonts-dejavu-core, tzdata")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "fonts-wqy-microhei, python3")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME clock-player-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "clocks for LED walls - development files
The interfaces between a display's host and its content plugins, as C++
headers, and the files that let other CMake projects build a host against
them.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "clock-player (= ${full_version}), ${clock_development_package_${CLOCK_QT}} (>= ${clock_oldest_qt})")

if(TARGET clock_studio)
    clock_package_studio(${full_version})
endif()

clock_install_compressed(
    ${PROJECT_SOURCE_DIR}/packaging/debian/changelog ${CLOCK_INSTALL_DOC} changelog.Debian)
clock_install_compressed(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${CLOCK_INSTALL_DOC} changelog)
install(FILES packaging/debian/copyright DESTINATION ${CLOCK_INSTALL_DOC} COMPONENT runtime)
# The development package shares the documentation of the package that it depends on.
clock_install_link(share/doc/clock-player-dev clock-player development)

include(CPack)
