# Warnings are errors with every compiler we support; the sanitizer build
# instruments the whole tree, tests and libraries alike.
add_library(kydi_compile_options INTERFACE)
target_compile_options(kydi_compile_options INTERFACE
    -Wall -Wextra -Werror -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(kydi_compile_options INTERFACE
        -Wshadow-uncaptured-local -Wno-gnu-zero-variadic-macro-arguments)
else()
    # g++ 12 reports overlapping copies inside std::string concatenation when
    # it inlines at -O2 and above, where there are none; that one check stays
    # off so that optimised builds keep warnings as errors.
    target_compile_options(kydi_compile_options INTERFACE -Wshadow=local -Wno-restrict)
endif()

if(KYDI_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "The fuzz targets need clang: configure with -DCMAKE_CXX_COMPILER=clang++")
    endif()
    # Everything the targets link is instrumented for libFuzzer's coverage and
    # checked by both sanitizers; the targets alone link libFuzzer itself.
    # Optimised a little, as libFuzzer runs fastest, with assertions kept.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer
        -fno-sanitize-recover=undefined -O1 -g)
    add_link_options(-fsanitize=address,undefined)
elseif(KYDI_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()
