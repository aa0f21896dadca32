# SPDX-License-Identifier: MIT
# Warnings go on our own targets only, through tarqen_warnings; the sanitizers must be on everything, or a report from
# inside a library function would miss what its caller did.
add_library(tarqen_warnings INTERFACE)
target_compile_options(
    tarqen_warnings
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wshadow
              -Wnon-virtual-dtor
              -Woverloaded-virtual
              -Wcast-qual
              -Wfloat-conversion
              -Wformat=2
              -Wimplicit-fallthrough
              -Wundef
              -Wvla)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(tarqen_warnings INTERFACE -Wduplicated-cond -Wlogical-op -Wsuggest-override)
    if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # At -O3 g++ 12 sees copies over themselves in the standard library's strings, where there are none.
        target_compile_options(tarqen_warnings INTERFACE -Wno-restrict)
    endif()
endif()
if(TARQEN_WERROR)
    target_compile_options(tarqen_warnings INTERFACE -Werror)
endif()

if(TARQEN_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # With the sanitizers' own code between the lines, g++ 12 sees uninitialised values that are none.
        add_compile_options(-Wno-maybe-uninitialized)
    endif()
endif()
