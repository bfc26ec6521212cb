# What is installed on devices is built with the flags of Debian's packages, and with every symbol
# bound at the start, so that the tables of addresses are read-only from then on. Debugging
# information and the level of optimisation stay those of the build type.
if(NOT CLOCK_HARDENING)
    return()
endif()
find_program(CLOCK_DPKG_BUILDFLAGS dpkg-buildflags)
if(NOT CLOCK_DPKG_BUILDFLAGS)
    message(FATAL_ERROR "dpkg-buildflags is needed for CLOCK_HARDENING: install dpkg-dev")
endif()

# clock_debian_flags(VARIABLE RESULT)
# The flags that Debian's packages put into a variable such as CXXFLAGS, as a list.
function(clock_debian_flags variable result)
    set(machine)
    if(CMAKE_LIBRARY_ARCHITECTURE STREQUAL arm-linux-gnueabihf)
        set(machine DEB_HOST_ARCH=armhf)
    endif()
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env DEB_BUILD_MAINT_OPTIONS=hardening=+all ${machine}
                ${CLOCK_DPKG_BUILDFLAGS} --get ${variable}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE
        RESULT_VARIABLE failed)
    if(failed)
        message(FATAL_ERROR "dpkg-buildflags does not tell ${variable}")
    endif()
    separate_arguments(flags UNIX_COMMAND "${flags}")
    list(REMOVE_ITEM flags -g -O2)
    set(${result} ${flags} PARENT_SCOPE)
endfunction()

clock_debian_flags(CPPFLAGS preprocessor)
clock_debian_flags(CXXFLAGS compiler)
clock_debian_flags(LDFLAGS linker)
add_compile_options(${preprocessor} ${compiler})
add_link_options(${linker} -Wl,-z,relro,-z,now)
# Packages have what is installed, and need nothing else to be built.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
