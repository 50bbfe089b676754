option(BUILD_TESTING "Build the tests" ON)
option(VELMORA_WERROR "Treat warnings as errors" OFF)
option(VELMORA_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
set(VELMORA_HELP_URL "https://velmora.example/how-to.html" CACHE STRING
    "Address of the how-to page that the Help command opens")

add_library(velmora_flags INTERFACE)
target_compile_options(velmora_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow)
add_compile_options(-Wconversion -Wno-sign-conversion)  # by folder: the tests do without
if(VELMORA_WERROR)
  target_compile_options(velmora_flags INTERFACE -Werror)
endif()
if(VELMORA_SANITIZE)
  target_compile_options(velmora_flags INTERFACE -fsanitize=address,undefined
                                                 -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(velmora_flags INTERFACE -fsanitize=address,undefined)
endif()
