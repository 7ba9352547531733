# What Windows reads from a program's file: a manifest (texts are UTF-8, paths may be long), a version and an icon.
# WINDOWED programs also get sharp text on every screen and the controls of today.
function(quelvarn_program_resources target)
  if(NOT WIN32)
    return()
  endif()
  cmake_parse_arguments(ARG "WINDOWED" "DESCRIPTION;ICON" "" ${ARGN})
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources)

  if(ARG_WINDOWED)
    set(display "
      <dpiAware xmlns=\"http://schemas.microsoft.com/SMI/2005/WindowsSettings\">true/pm</dpiAware>
      <dpiAwareness xmlns=\"http://schemas.microsoft.com/SMI/2016/WindowsSettings\">PerMonitorV2, PerMonitor</dpiAwareness>")
    set(controls "
  <dependency>
    <dependentAssembly>
      <assemblyIdentity type=\"win32\" name=\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\"
                        processorArchitecture=\"*\" publicKeyToken=\"6595b64144ccf1df\" language=\"*\"/>
    </dependentAssembly>
  </dependency>")
  endif()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/windows/program.manifest.in ${folder}/${target}.manifest @ONLY)

  if(ARG_ICON)
    set(icon "IDI_ICON1 ICON \"${ARG_ICON}\"") # The name under which Qt looks for it.
  endif()
  if(MSVC)
    # CMake has it merged with the linker's own, which says the same of the rights.
    target_sources(${target} PRIVATE ${folder}/${target}.manifest)
  else()
    set(manifest "1 24 \"${folder}/${target}.manifest\"") # The program's own manifest, which is resource type 24.
  endif()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/windows/program.rc.in ${folder}/${target}.rc @ONLY)
  target_sources(${target} PRIVATE ${folder}/${target}.rc)
endfunction()
