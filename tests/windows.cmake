# Tests that run on Windows (or under Wine): the contract suites of the ports against the real side,
# and the roads through corvelle.exe.

# corvelle_windows_tests(FOLDER PROGRAM LINKS libraries... SOURCES more files...)
function(corvelle_windows_tests folder program)
  cmake_parse_arguments(ARG "" "" "LINKS;SOURCES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${program} ${sources} ${ARG_SOURCES})
  target_include_directories(${program} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${program} PRIVATE corvelle_options corvelle_gtest ${ARG_LINKS})
  target_link_options(${program} PRIVATE -s)
  set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
endfunction()

set(windows_libraries gdi32 user32 shell32 comctl32 comdlg32 ole32 advapi32 uuid)
corvelle_windows_tests(e2e/contract windows_contract_tests LINKS corvelle_win32 corvelle_icons corvelle_launch corvelle_core
  ${windows_libraries})

if(TARGET corvelle_icon_helper)
  add_dependencies(windows_contract_tests corvelle_icon_helper)
endif()

# The roads of tests/scenario, walked with a hand at the mouse of a real desktop.
file(GLOB scenarios CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/scenario/*_test.cpp)
corvelle_windows_tests(e2e e2e_tests LINKS corvelle_properties corvelle_core user32 gdi32
  shell32 ole32 uuid
  SOURCES ${scenarios} scenario/Strip.cpp)

add_executable(witness WIN32 e2e/witness/witness.cpp)
target_link_libraries(witness PRIVATE corvelle_options)
target_link_options(witness PRIVATE -municode -s)
# A library that is put where the program must not load it from, and a program that would load it.
add_library(planted MODULE e2e/planted/planted.cpp)
add_executable(naive WIN32 e2e/planted/naive.cpp)
set_target_properties(planted PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
foreach(program planted naive)
  target_link_libraries(${program} PRIVATE corvelle_options)
  target_link_options(${program} PRIVATE -municode -static -s)
endforeach()
# What the start of the program is measured beside.
foreach(program bare bareshell)
  add_executable(${program} WIN32 e2e/start/${program}.cpp)
  target_include_directories(${program} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${program} PRIVATE corvelle_options)
  target_link_options(${program} PRIVATE -municode -static -s)
endforeach()
target_link_libraries(bareshell PRIVATE ole32 shell32)
set_target_properties(witness naive bare bareshell PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
