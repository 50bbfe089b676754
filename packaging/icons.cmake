# Draws the application icon as pictures while building, with a small program of the project: Qt Svg
# is needed anyway, and so no converter has to be installed.
add_executable(render_icon render_icon.cpp)
set_target_properties(render_icon PROPERTIES
  AUTOMOC OFF
  AUTOUIC OFF
  AUTORCC OFF
  RUNTIME_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}
)
target_link_libraries(render_icon PRIVATE Qt6::Svg)

function(velmora_render_icon target folder)
  list(TRANSFORM ARGN REPLACE "(.+)" "${folder}/\\1.png" OUTPUT_VARIABLE pictures)
  add_custom_command(
    OUTPUT ${pictures}
    COMMAND render_icon ${icon} ${folder} ${ARGN}
    DEPENDS ${icon} render_icon
    VERBATIM
  )
  add_custom_target(${target} ALL DEPENDS ${pictures})
endfunction()
