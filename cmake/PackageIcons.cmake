# The icons, drawn as SVG below assets/icons, become .ico files of 16, 24, 32, 48 and 256 pixels in
# ${CMAKE_BINARY_DIR}/icons, the largest compressed as PNG; with the lists of their categories they are
# packed into the icon library, ${CMAKE_BINARY_DIR}/icon.lib. The target corvelle_icon_files makes all.
find_program(RSVG_CONVERT rsvg-convert)
find_program(ICOTOOL icotool)
if(NOT RSVG_CONVERT OR NOT ICOTOOL)
  message(FATAL_ERROR "rsvg-convert (librsvg2-bin) and icotool (icoutils) are needed to make the icons")
endif()
find_package(Python3 REQUIRED COMPONENTS Interpreter)

set(CORVELLE_ICONS_DIR ${CMAKE_BINARY_DIR}/icons)
set(CORVELLE_ICON_LIBRARY ${CMAKE_BINARY_DIR}/icon.lib)
set(icon_sizes 16 24 32 48)
set(largest_icon 256)
file(MAKE_DIRECTORY ${CORVELLE_ICONS_DIR})
file(GLOB icon_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/icons/*.svg)
file(GLOB icon_categories CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/icons/*.ini)
set(library_icons)
foreach(source IN LISTS icon_sources)
  get_filename_component(name ${source} NAME_WE)
  set(icon ${CORVELLE_ICONS_DIR}/${name}.ico)
  set(start ${CORVELLE_ICONS_DIR}/${name})
  set(pictures)
  set(commands)
  foreach(size IN LISTS icon_sizes largest_icon)
    list(APPEND commands COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${start}-${size}.png ${source})
  endforeach()
  foreach(size IN LISTS icon_sizes)
    list(APPEND pictures ${start}-${size}.png)
  endforeach()
  add_custom_command(OUTPUT ${icon}
    ${commands}
    COMMAND ${ICOTOOL} -c -o ${icon} ${pictures} --raw=${start}-${largest_icon}.png
    DEPENDS ${source} COMMENT "Icon ${name}.ico" VERBATIM)
  # The program's own icon is inside the program.
  if(name STREQUAL "corvelle")
    set(program_icon ${icon})
  else()
    list(APPEND library_icons ${icon})
  endif()
endforeach()

set(packer ${PROJECT_SOURCE_DIR}/tools/pack_library.py)
add_custom_command(OUTPUT ${CORVELLE_ICON_LIBRARY}
  COMMAND Python3::Interpreter ${packer} ${CORVELLE_ICON_LIBRARY} ${icon_categories} ${library_icons}
  DEPENDS ${packer} ${icon_categories} ${library_icons} COMMENT "Icon library" VERBATIM)
add_custom_target(corvelle_icon_files ALL DEPENDS ${program_icon} ${CORVELLE_ICON_LIBRARY})

# The program carries its own icon.
if(TARGET corvelle)
  add_dependencies(corvelle corvelle_icon_files)
  target_include_directories(corvelle PRIVATE ${CORVELLE_ICONS_DIR})
  set_property(SOURCE ${CORVELLE_GENERATED}/corvelle.rc APPEND PROPERTY
    OBJECT_DEPENDS "${program_icon};${CORVELLE_GENERATED}/corvelle.manifest")
endif()
