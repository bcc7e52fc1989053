# What every target is compiled with.
add_library(quillet_options INTERFACE)
target_compile_features(quillet_options INTERFACE c_std_11 cxx_std_20)
target_compile_options(quillet_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<BOOL:${QUILLET_WARNINGS_AS_ERRORS}>:-Werror>)

if(QUILLET_SANITIZERS)
    target_compile_options(quillet_options INTERFACE
        -fsanitize=${QUILLET_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillet_options INTERFACE -fsanitize=${QUILLET_SANITIZERS})
endif()

if(QUILLET_FUZZERS)
    target_compile_options(quillet_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
