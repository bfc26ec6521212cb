# One warnings target for all of the tree's own code.
add_library(clock_warnings INTERFACE)
target_compile_options(clock_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow)
if(CLOCK_WERROR)
    target_compile_options(clock_warnings INTERFACE -Werror)
endif()
