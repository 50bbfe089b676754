option(BUILD_TESTING "Build the tests" ON)
option(VELMORA_WERROR "Treat warnings as errors" OFF)
option(VELMORA_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(VELMORA_FUZZERS "Build the fuzzers; needs Clang and VELMORA_SANITIZE" OFF)
set(VELMORA_HELP_URL "" CACHE STRING
    "Address of the how-to page that the Help command opens; the installed guide when empty")

add_library(velmora_flags INTERFACE)
target_compile_options(velmora_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow)
add_compile_options(-Wconversion -Wno-sign-conversion)  # not in velmora_flags: the tests turn it off
if(VELMORA_WERROR)
  target_compile_options(velmora_flags INTERFACE -Werror)
endif()
if(VELMORA_SANITIZE)
  target_compile_options(velmora_flags INTERFACE -fsanitize=address,undefined
                                                 -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(velmora_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VELMORA_FUZZERS)
  # RapidJSON adds an offset to the null pointer of a stack that is still empty.
  target_compile_options(velmora_flags INTERFACE -O1 -fsanitize=fuzzer-no-link
                                                 -fno-sanitize=pointer-overflow)
endif()
