# corvelle.exe itself.
if(EXISTS ${PROJECT_SOURCE_DIR}/src/main.cpp)
  add_executable(corvelle WIN32 src/main.cpp)
  # The resources bear the version of the project.
  foreach(resource corvelle.rc corvelle.manifest)
    configure_file(src/win32/${resource}.in ${CMAKE_BINARY_DIR}/resources/${resource} @ONLY)
  endforeach()
  target_sources(corvelle PRIVATE ${CMAKE_BINARY_DIR}/resources/corvelle.rc)
  target_include_directories(corvelle PRIVATE ${CMAKE_BINARY_DIR}/resources)
  target_link_libraries(corvelle PRIVATE corvelle_options corvelle_win32 corvelle_program gdi32 user32 shell32 comctl32 comdlg32 ole32 advapi32 uuid)
  set_target_properties(corvelle PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  target_link_options(corvelle PRIVATE $<$<NOT:$<CONFIG:Debug>>:-s>)
endif()

include(${CMAKE_CURRENT_LIST_DIR}/PackageIcons.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/PackageHelp.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/PackageFolder.cmake)
