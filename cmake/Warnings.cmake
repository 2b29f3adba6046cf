# Warnings are errors, in every file of the house, with both compilers.
add_library(corvelle_options INTERFACE)
target_compile_options(corvelle_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wno-sign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  # Twips are compared exactly in places, so the compiler may not fuse or reorder float arithmetic.
  -ffp-contract=off)
# Fully optimised, the compiler sees null pointers on paths that do not exist.
target_compile_options(corvelle_options INTERFACE $<$<NOT:$<CONFIG:Release>>:-Wnull-dereference>)
# A struct whose fields all have defaults is meant to be filled by naming only some of them.
target_compile_options(corvelle_options INTERFACE -Wno-missing-field-initializers)
# GCC 12 sees copies of impossible lengths in the concatenation of strings (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(corvelle_options INTERFACE -Wno-restrict)
endif()
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Several files compiled as one: what is local to each of them is then part of an included file.
  target_compile_options(corvelle_options INTERFACE -Wno-subobject-linkage)
endif()
if(CORVELLE_SANITIZE)
  target_compile_options(corvelle_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(corvelle_options INTERFACE -fsanitize=address,undefined)
  # The optimiser sees paths through instrumented code that do not exist.
  target_compile_options(corvelle_options INTERFACE -Wno-null-dereference)
endif()
if(WIN32)
  # What nothing calls is left out of the program, and so are the names of its types, which nothing asks for.
  target_compile_options(corvelle_options INTERFACE -fno-rtti)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # In 64 bits each section begins at a multiple of 16: a section for each function costs more than it saves.
    target_compile_options(corvelle_options INTERFACE -ffunction-sections -fdata-sections)
  endif()
  target_link_options(corvelle_options INTERFACE -Wl,--gc-sections)
  target_compile_definitions(corvelle_options INTERFACE
    UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601 WINVER=0x0601)
endif()
