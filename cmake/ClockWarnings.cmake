# One warnings target for all of the tree's own code.
add_library(clock_warnings INTERFACE)
target_compile_options(clock_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow)
if(CLOCK_WERROR)
    target_compile_options(clock_warnings INTERFACE -Werror)
endif()

if(CLOCK_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
