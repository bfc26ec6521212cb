# One warnings target for all of the tree's own code.
add_library(clock_warnings INTERFACE)
target_compile_options(clock_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow)
if(clock_sizes_exceed_int)
    target_compile_options(clock_warnings INTERFACE -Wno-conversion)
endif()
if(CLOCK_WERROR)
    target_compile_options(clock_warnings INTERFACE -Werror)
endif()
