# Toolchain file for 32-bit ARM as Debian's armhf: ARMv7 with floating point in hardware, the
# compiler's default, nothing more. scripts/make-arm-sysroot makes the sysroot.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
set(CMAKE_C_COMPILER ${CMAKE_LIBRARY_ARCHITECTURE}-gcc)
set(CMAKE_CXX_COMPILER ${CMAKE_LIBRARY_ARCHITECTURE}-g++)

get_filename_component(sysroot ${CMAKE_CURRENT_LIST_DIR}/../build-arm-sysroot ABSOLUTE)
set(CLOCK_SYSROOT ${sysroot} CACHE PATH "Debian's armhf packages, unpacked")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CLOCK_SYSROOT)
set(CMAKE_SYSROOT ${CLOCK_SYSROOT})

# Programs are the build machine's; all else is the sysroot's.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${CMAKE_SYSROOT}/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/pkgconfig)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${CMAKE_SYSROOT})

# Tests run in an emulator.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm;-L;${CMAKE_SYSROOT})
