# The sources that only the macOS program has. They are plain C++ and compiled everywhere, so that
# they keep up with their headers; on other systems nothing is linked with them.
if(APPLE)
  return()
endif()
file(GLOB macos_sources CONFIGURE_DEPENDS
     ${PROJECT_SOURCE_DIR}/src/*/*_mac.cpp ${PROJECT_SOURCE_DIR}/src/*/mac_*.cpp)
add_library(velmora_macos OBJECT ${macos_sources})
set_target_properties(velmora_macos PROPERTIES AUTOMOC OFF)
target_link_libraries(velmora_macos PRIVATE velmora_window velmora_flags)
