# The folder of the program as it is handed out: `cmake --install BUILD --prefix dist/Corvelle`. An
# installation leaves what the user has made there alone.
if(TARGET corvelle)
  install(TARGETS corvelle RUNTIME DESTINATION .)
  foreach(icon IN LISTS CORVELLE_ICONS)
    get_filename_component(name ${icon} NAME_WE)
    # The program's own icon is inside it; the fallback picture bears the name that it is asked by.
    if(name STREQUAL "W95MBX02")
      install(FILES ${icon} DESTINATION Icons RENAME W95MBX02.ICO)
    elseif(NOT name STREQUAL "corvelle")
      install(FILES ${icon} DESTINATION Icons)
    endif()
  endforeach()
  install(DIRECTORY DESTINATION Menus)
  install(DIRECTORY DESTINATION ShellLink)
endif()
