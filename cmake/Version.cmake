# The version stands in CMakeLists.txt alone; all that shows it is made from there.
set(CORVELLE_VERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(third ${PROJECT_VERSION_PATCH})
if(third)
  string(APPEND CORVELLE_VERSION .${third})
else()
  set(third 0)
endif()
set(CORVELLE_VERSION_FOUR ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${third}.0)
string(REPLACE "." ", " CORVELLE_VERSION_COMMAS ${CORVELLE_VERSION_FOUR})

set(CORVELLE_GENERATED ${CMAKE_BINARY_DIR}/generated)
configure_file(src/base/Version.h.in ${CORVELLE_GENERATED}/base/Version.h @ONLY)
if(WIN32)
  configure_file(src/win32/corvelle.rc.in ${CORVELLE_GENERATED}/corvelle.rc @ONLY)
  configure_file(src/win32/corvelle.manifest.in ${CORVELLE_GENERATED}/corvelle.manifest @ONLY)
  # The process that looks for icons says the same of itself, but for its name and without an icon.
  file(READ ${CORVELLE_GENERATED}/corvelle.rc shell_resources)
  string(REPLACE "1 ICON \"corvelle.ico\"\n" "" shell_resources "${shell_resources}")
  string(REPLACE "\"FileDescription\", \"Corvelle\"" "\"FileDescription\", \"Icons for Corvelle\""
    shell_resources "${shell_resources}")
  string(REPLACE "\"InternalName\", \"corvelle\"" "\"InternalName\", \"corvelle-shell\"" shell_resources
    "${shell_resources}")
  string(REPLACE "corvelle.exe" "corvelle-shell.exe" shell_resources "${shell_resources}")
  file(CONFIGURE OUTPUT ${CORVELLE_GENERATED}/corvelle-shell.rc CONTENT "${shell_resources}" @ONLY)
endif()
