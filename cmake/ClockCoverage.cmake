# Counts which lines and branches run, for scripts/coverage. Nothing is optimised, so that a line of
# the source is a line of the program, and whole counts are written by tests of several threads.
if(CLOCK_COVERAGE)
    add_compile_options(--coverage -O0 -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
