# The pages of the help, made from docs/help into ${CMAKE_BINARY_DIR}/Help by the target corvelle_help.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

set(CORVELLE_HELP_DIR ${CMAKE_BINARY_DIR}/Help)
file(GLOB help_pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/help/*.md)
file(GLOB help_pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/help/pictures/*.png)
set(help_maker ${PROJECT_SOURCE_DIR}/tools/build_help.py)
add_custom_command(OUTPUT ${CORVELLE_HELP_DIR}/index.html
  COMMAND Python3::Interpreter ${help_maker} ${CORVELLE_HELP_DIR} ${help_pages}
  DEPENDS ${help_maker} ${help_pages} ${help_pictures} COMMENT "Help" VERBATIM)
add_custom_target(corvelle_help ALL DEPENDS ${CORVELLE_HELP_DIR}/index.html)
