# The folder of the program as it is handed out: `cmake --install BUILD --prefix dist/Corvelle`. An
# installation leaves what the user has made there alone. The program makes its other folders, and unpacks
# its icons, at its first start.
if(TARGET corvelle)
  install(TARGETS corvelle RUNTIME DESTINATION .)
  install(FILES ${CORVELLE_ICON_LIBRARY} DESTINATION .)
  install(FILES LICENSE DESTINATION . RENAME LICENSE.txt)
  install(FILES CHANGELOG.md DESTINATION . RENAME CHANGES.txt)
  # It keeps the user's data in the folder; a release's installer leaves it out.
  install(FILES assets/portable DESTINATION .)
endif()
