# The folder of the program as it is handed out: `cmake --install BUILD --prefix dist/Corvelle`. An
# installation leaves what the user has made there alone. The program makes its other folders, and unpacks
# its icons, at its first start.
if(TARGET corvelle)
  # All that the folder is made of.
  add_custom_target(corvelle_package DEPENDS corvelle corvelle_icon_helper corvelle_icon_files corvelle_help)
  install(TARGETS corvelle corvelle_icon_helper RUNTIME DESTINATION .)
  install(FILES ${CORVELLE_ICON_LIBRARY} DESTINATION .)
  # The list of search engines is the user's to change: one that is there stays as it is.
  set(engine_list ${PROJECT_SOURCE_DIR}/assets/search/netsrch.ini)
  install(FILES ${engine_list} DESTINATION . RENAME anetsrch.org)
  install(CODE "if(NOT EXISTS \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/netsrch.ini\")
    file(INSTALL \"${engine_list}\" DESTINATION \"\${CMAKE_INSTALL_PREFIX}\")
  endif()")
  install(DIRECTORY ${CORVELLE_HELP_DIR}/ DESTINATION Help)
  install(FILES LICENSE DESTINATION . RENAME LICENSE.txt)
  install(FILES CHANGELOG.md DESTINATION . RENAME CHANGES.txt)
  # It keeps the user's data in the folder; a release's installer leaves it out.
  install(FILES assets/portable DESTINATION .)
endif()
