# Read by cpack where the packages are for another machine.
set(SHLIBDEPS_EXECUTABLE ${CPACK_CLOCK_SHLIBDEPS})
