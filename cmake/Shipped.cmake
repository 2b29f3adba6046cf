# What goes for the code that is handed out, and not for that of the tests.
add_library(corvelle_shipped INTERFACE)
if(WIN32)
  target_compile_options(corvelle_shipped INTERFACE -fstack-protector-strong)
  target_link_libraries(corvelle_shipped INTERFACE ssp)
  # Function names and lines, for reading the reports of crashes. Wherever the house is built, and whether its
  # files are named from the root or from the folder of the build, they get the same names.
  target_compile_options(corvelle_shipped INTERFACE $<$<NOT:$<CONFIG:Debug>>:-g1>
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=../..=.
    -ffile-prefix-map=CMakeFiles=./build/${CMAKE_SYSTEM_PROCESSOR}/CMakeFiles
    -ffile-prefix-map=${CMAKE_BINARY_DIR}=./build/${CMAKE_SYSTEM_PROCESSOR})
  # Calls of late libraries name the function itself. The 32-bit linker throws the code that looks a function up
  # away where only its address is named, and such a call would lead to address 0.
  target_compile_definitions(corvelle_shipped INTERFACE _COMCTL32_ _COMDLG32_)
endif()

# corvelle_late_library(PROGRAM DLL): what PROGRAM uses of a library that is no known library of the system
# is looked up when it is used first. The library is then found where the program allows it to be found,
# and not beside the program, where the loader would take it from before the program's first statement.
function(corvelle_late_library program dll)
  set(source ${CMAKE_FIND_ROOT_PATH}/lib/lib${dll}.a)
  set(definition ${CMAKE_BINARY_DIR}/late/${dll}.def)
  set(library ${CMAKE_BINARY_DIR}/late/lib${dll}late.a)
  string(REGEX REPLACE "gcc(-posix)?$" "" tools ${CMAKE_C_COMPILER})
  execute_process(COMMAND ${tools}nm --defined-only --format=posix ${source}
                  OUTPUT_VARIABLE names COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "[A-Za-z_@0-9]+ T " functions "${names}")
  list(TRANSFORM functions REPLACE " T " "")
  if(CMAKE_SYSTEM_PROCESSOR STREQUAL "i686")
    list(TRANSFORM functions REPLACE "^_" "")
  endif()
  list(SORT functions)
  list(REMOVE_DUPLICATES functions)
  list(JOIN functions "\n" lines)
  file(CONFIGURE OUTPUT ${definition} CONTENT "LIBRARY ${dll}.dll\nEXPORTS\n${lines}\n")
  add_custom_command(OUTPUT ${library}
    # Symbols bear the name of the library, so that it must not be a path.
    COMMAND ${tools}dlltool --input-def ${dll}.def --output-delaylib lib${dll}late.a --kill-at
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/late
    DEPENDS ${definition} COMMENT "Late import library of ${dll}" VERBATIM)
  add_custom_target(corvelle_late_${dll} DEPENDS ${library})
  add_dependencies(${program} corvelle_late_${dll})
  target_link_libraries(${program} PRIVATE ${library} delayimp)
endfunction()
