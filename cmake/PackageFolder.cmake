# The folder of the program as it is handed out: `cmake --install BUILD --prefix dist/Corvelle`. An
# installation leaves what the user has made there alone. The program unpacks its icons at its first start.
if(TARGET corvelle)
  install(TARGETS corvelle RUNTIME DESTINATION .)
  install(FILES ${CORVELLE_ICON_LIBRARY} DESTINATION .)
  install(DIRECTORY DESTINATION Menus)
  install(DIRECTORY DESTINATION ShellLink)
endif()
