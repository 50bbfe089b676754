# The application bundle: its property list and its icon.
if(NOT TARGET velmora)
  return()
endif()
include(icons.cmake)
set(iconset ${CMAKE_CURRENT_BINARY_DIR}/velmora.iconset)
velmora_render_icon(velmora_icons ${CMAKE_CURRENT_BINARY_DIR}/icons 16 32 64 128 256 512 1024)
set(copies "")
foreach(size 16 32 128 256 512)
  math(EXPR double "${size} * 2")
  list(APPEND copies
    COMMAND ${CMAKE_COMMAND} -E copy icons/${size}.png ${iconset}/icon_${size}x${size}.png
    COMMAND ${CMAKE_COMMAND} -E copy icons/${double}.png ${iconset}/icon_${size}x${size}@2x.png)
endforeach()
add_custom_command(
  OUTPUT velmora.icns
  COMMAND ${CMAKE_COMMAND} -E make_directory ${iconset}
  ${copies}
  COMMAND iconutil --convert icns --output velmora.icns ${iconset}
  DEPENDS velmora_icons ${icon}
  WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}
  VERBATIM
)
set(bundle_icon ${CMAKE_CURRENT_BINARY_DIR}/velmora.icns)
add_custom_target(velmora_bundle_icon ALL DEPENDS ${bundle_icon})
add_dependencies(velmora velmora_bundle_icon)

set_target_properties(velmora PROPERTIES
  MACOSX_BUNDLE ON
  OUTPUT_NAME Velmora
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_SOURCE_DIR}/macos/Info.plist.in
)
add_custom_command(TARGET velmora POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E copy_if_different
          ${bundle_icon} $<TARGET_BUNDLE_CONTENT_DIR:velmora>/Resources/velmora.icns
  COMMAND ${CMAKE_COMMAND} -E copy_if_different
          ${PROJECT_SOURCE_DIR}/docs/how-to.html
          $<TARGET_BUNDLE_CONTENT_DIR:velmora>/Resources/how-to.html
  VERBATIM
)
install(TARGETS velmora BUNDLE DESTINATION .)
