# Every *.cpp of a folder belongs to that folder's target, so that no file and no test can fall out
# of the build.

# corvelle_floor(NAME DEPENDS floors...): the library of src/NAME.
function(corvelle_floor name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${name}/*.cpp)
  if(sources)
    add_library(corvelle_${name} STATIC ${sources})
    set(scope PUBLIC)
  else()
    add_library(corvelle_${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_include_directories(corvelle_${name} ${scope} ${PROJECT_SOURCE_DIR}/src ${CORVELLE_GENERATED})
  if(sources)
    target_link_libraries(corvelle_${name} PRIVATE corvelle_options corvelle_shipped)
    if(WIN32 AND NOT name STREQUAL win32)
      # The more files the compiler sees at a time, the smaller is the program. The names of the
      # system's headers are against it where they are included.
      set_target_properties(corvelle_${name} PROPERTIES UNITY_BUILD_BATCH_SIZE 30)
    endif()
  endif()
  foreach(floor IN LISTS ARG_DEPENDS)
    target_link_libraries(corvelle_${name} ${scope} corvelle_${floor})
  endforeach()
  if(CORVELLE_SANITIZE)
    target_link_libraries(corvelle_${name} ${scope} corvelle_sanitize_link)
  endif()
endfunction()

if(CORVELLE_SANITIZE)
  add_library(corvelle_sanitize_link INTERFACE)
  target_link_options(corvelle_sanitize_link INTERFACE -fsanitize=address,undefined)
endif()
