# The compiler flags of every target of ours, and those that the product has beside them.
add_library(orvanta_flags INTERFACE)
add_library(orvanta_product_flags INTERFACE)
target_link_libraries(orvanta_product_flags INTERFACE orvanta_flags)
target_compile_features(orvanta_flags INTERFACE cxx_std_20)
if(MSVC)
    target_compile_options(orvanta_flags INTERFACE /W4 /WX /permissive- /utf-8)
else()
    target_compile_options(orvanta_flags INTERFACE -Wall -Wextra -Wpedantic -Werror -Wshadow=local
        -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough)
    target_compile_options(orvanta_product_flags INTERFACE -Wconversion -Wsign-conversion)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # GCC 12 sees overlaps in optimised std::string code that can't happen.
        target_compile_options(orvanta_flags INTERFACE -Wno-restrict)
    endif()
    if(ORVANTA_FUZZ)
        target_compile_options(orvanta_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined
            -fno-sanitize-recover=undefined -Wno-error -Wno-unknown-warning-option)
        target_link_options(orvanta_flags INTERFACE -fsanitize=address,undefined)
    endif()
    if(ORVANTA_SANITIZE)
        target_compile_options(orvanta_flags INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
            -fno-sanitize-recover=undefined)
        target_link_options(orvanta_flags INTERFACE -fsanitize=address,undefined)
    endif()
endif()
