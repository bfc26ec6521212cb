# Counts which lines and branches of the plugin run, for scripts/coverage. What is counted is not
# optimised, so that a line of the source is a line of the program; everything else is, as some tests
# measure time. Tests of several threads write whole counts.
if(CLOCK_COVERAGE)
    set(CLOCK_COUNTED_OPTIONS --coverage -O0 -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
