# `cmake --install build/NAME --prefix FOLDER`: on Windows a folder that can be copied to a workstation as it is.
include(GNUInstallDirs)

set(programs qvadmin)
if(QUELVARN_UI)
  list(APPEND programs quelvarn)
endif()

if(MSVC)
  install(TARGETS ${programs} RUNTIME_DEPENDENCY_SET quelvarn_dlls)
  # The package manager has laid the libraries of the drivers beside the programs. What Windows has stays there.
  install(RUNTIME_DEPENDENCY_SET quelvarn_dlls
    PRE_EXCLUDE_REGEXES "^api-ms-" "^ext-ms-"
    POST_EXCLUDE_REGEXES "[/\\][Ss][Yy][Ss][Tt][Ee][Mm]32[/\\]"
    DIRECTORIES $<TARGET_FILE_DIR:qvadmin>)
  if(QUELVARN_UI)
    # Qt's libraries, its plugins (window system, pictures, style) and its German texts.
    if(Qt6_VERSION VERSION_LESS 6.5)
      message(WARNING "Installing the program with its libraries needs Qt 6.5 or newer.")
    else()
      qt_generate_deploy_app_script(TARGET quelvarn OUTPUT_SCRIPT deploy_script NO_UNSUPPORTED_PLATFORM_ERROR)
      install(SCRIPT ${deploy_script})
    endif()
  endif()
else()
  install(TARGETS ${programs})
endif()

if(UNIX AND QUELVARN_UI)
  install(FILES src/app/linux/quelvarn.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES src/ui/resources/icons/program.svg RENAME quelvarn.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
