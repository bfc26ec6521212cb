# Sanitizers for all of the tree's own code, in two kinds: what the tests run under, and what the fuzz
# targets do, where every branch counts and a double that is cut must fit its number.
if(CLOCK_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
elseif(CLOCK_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow
                        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# What a program of the tree needs around it when it is run. Its own exit codes are smaller than that of
# a finding, so that no test takes one for the other. The leak checker follows the thread-local
# variables of libraries that were loaded late, takes some of them for memory that is not there, and
# now and then ends a program that lost nothing ("Tracer caught signal 11"); so it does not follow them.
set(CLOCK_RUN_ENVIRONMENT)
if(CLOCK_SANITIZE OR CLOCK_FUZZ)
    set(CLOCK_RUN_ENVIRONMENT
        ASAN_OPTIONS=exitcode=99:intercept_tls_get_addr=0
        LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/scripts/leaks-elsewhere.txt:print_suppressions=0)
endif()
