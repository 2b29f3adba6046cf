# corvelle.exe itself.
if(EXISTS ${PROJECT_SOURCE_DIR}/src/main.cpp)
  add_executable(corvelle WIN32 src/main.cpp ${CORVELLE_GENERATED}/corvelle.rc)
  target_link_libraries(corvelle PRIVATE corvelle_options corvelle_shipped corvelle_win32 corvelle_program
                        gdi32 user32 shell32 ole32 advapi32 uuid)
  corvelle_late_library(corvelle comctl32)
  corvelle_late_library(corvelle comdlg32)
  set_target_properties(corvelle PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  # Any address, no code among data, at home on a terminal server; the same bytes from each build.
  target_link_options(corvelle PRIVATE
    -Wl,--dynamicbase -Wl,--nxcompat -Wl,--tsaware -Wl,--no-insert-timestamp
    -Wl,$<IF:$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>,--high-entropy-va,--large-address-aware>)
  # The names and lines of the code go to a file of their own, beside the program.
  string(REGEX REPLACE "gcc(-posix)?$" "objcopy" objcopy ${CMAKE_C_COMPILER})
  add_custom_command(TARGET corvelle POST_BUILD
    COMMAND ${objcopy} --preserve-dates --only-keep-debug $<TARGET_FILE:corvelle> ${CMAKE_BINARY_DIR}/corvelle.debug
    COMMAND ${objcopy} --preserve-dates --strip-all $<TARGET_FILE:corvelle>
    BYPRODUCTS ${CMAKE_BINARY_DIR}/corvelle.debug VERBATIM)
endif()

# corvelle-shell.exe looks for icons in a process of its own.
if(TARGET corvelle)
  add_executable(corvelle_icon_helper WIN32 src/shell_main.cpp ${CORVELLE_GENERATED}/corvelle-shell.rc)
  target_link_libraries(corvelle_icon_helper PRIVATE corvelle_options corvelle_shipped corvelle_win32
                        gdi32 user32 shell32 ole32 advapi32 uuid)
  foreach(dll comctl32 comdlg32)
    add_dependencies(corvelle_icon_helper corvelle_late_${dll})
    target_link_libraries(corvelle_icon_helper PRIVATE ${CMAKE_BINARY_DIR}/late/lib${dll}late.a delayimp)
  endforeach()
  set_target_properties(corvelle_icon_helper PROPERTIES OUTPUT_NAME corvelle-shell
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  target_link_options(corvelle_icon_helper PRIVATE -s
    -Wl,--dynamicbase -Wl,--nxcompat -Wl,--tsaware -Wl,--no-insert-timestamp
    -Wl,$<IF:$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>,--high-entropy-va,--large-address-aware>)
endif()

include(${CMAKE_CURRENT_LIST_DIR}/PackageIcons.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/PackageHelp.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/PackageFolder.cmake)
