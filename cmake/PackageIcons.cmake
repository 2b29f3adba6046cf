# The icons, drawn as SVG below assets/icons, become .ico files of 16, 24, 32 and 48 pixels in
# ${CMAKE_BINARY_DIR}/icons; the target corvelle_icon_files makes them.
find_program(RSVG_CONVERT rsvg-convert)
find_program(ICOTOOL icotool)
if(NOT RSVG_CONVERT OR NOT ICOTOOL)
  message(FATAL_ERROR "rsvg-convert (librsvg2-bin) and icotool (icoutils) are needed to make the icons")
endif()

set(CORVELLE_ICONS_DIR ${CMAKE_BINARY_DIR}/icons)
set(icon_sizes 16 24 32 48)
file(MAKE_DIRECTORY ${CORVELLE_ICONS_DIR})
file(GLOB icon_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/icons/*.svg)
set(CORVELLE_ICONS)
foreach(source IN LISTS icon_sources)
  get_filename_component(name ${source} NAME_WE)
  set(pictures)
  set(commands)
  foreach(size IN LISTS icon_sizes)
    set(picture ${CORVELLE_ICONS_DIR}/${name}-${size}.png)
    list(APPEND pictures ${picture})
    list(APPEND commands COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${picture} ${source})
  endforeach()
  add_custom_command(OUTPUT ${CORVELLE_ICONS_DIR}/${name}.ico
    ${commands}
    COMMAND ${ICOTOOL} -c -o ${CORVELLE_ICONS_DIR}/${name}.ico ${pictures}
    DEPENDS ${source} COMMENT "Icon ${name}.ico" VERBATIM)
  list(APPEND CORVELLE_ICONS ${CORVELLE_ICONS_DIR}/${name}.ico)
endforeach()
add_custom_target(corvelle_icon_files ALL DEPENDS ${CORVELLE_ICONS})

# The program carries its own icon.
if(TARGET corvelle)
  add_dependencies(corvelle corvelle_icon_files)
  target_include_directories(corvelle PRIVATE ${CORVELLE_ICONS_DIR})
  set_property(SOURCE ${PROJECT_SOURCE_DIR}/src/win32/corvelle.rc APPEND PROPERTY
    OBJECT_DEPENDS "${CORVELLE_ICONS_DIR}/corvelle.ico;${PROJECT_SOURCE_DIR}/src/win32/corvelle.manifest")
endif()
