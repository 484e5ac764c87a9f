# How everything here is compiled.

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(vellox_options INTERFACE)
target_compile_options(vellox_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
if(VELLOX_WERROR)
    target_compile_options(vellox_options INTERFACE -Werror)
endif()
if(VELLOX_FUZZ)
    target_compile_options(vellox_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(VELLOX_SANITIZE)
    target_compile_options(
        vellox_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1
    )
    target_link_options(vellox_options INTERFACE -fsanitize=address,undefined)
endif()
