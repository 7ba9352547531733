# The headers nearly every file of the core reads, compiled once for each kind of target.
set(QUELVARN_PCH <algorithm> <array> <functional> <map> <memory> <optional> <string> <string_view> <vector>
  <fmt/format.h>)

# One static library a folder of src/. Its link list is the layering rule: what a folder does not link
# it must not include (`./qv lint` checks the includes as well). EXCLUDE: a pattern of sources that are left out.
function(quelvarn_folder name)
  cmake_parse_arguments(ARG "" "EXCLUDE" "LINK;PRIVATE_LINK" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "/linux/")
  else()
    list(FILTER sources EXCLUDE REGEX "/windows/")
  endif()
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  if(ARG_EXCLUDE)
    list(FILTER sources EXCLUDE REGEX "${ARG_EXCLUDE}")
  endif()
  add_library(quelvarn_${name} STATIC ${sources})
  set_target_properties(quelvarn_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(quelvarn_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(quelvarn_${name} PUBLIC ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK})
  target_precompile_headers(quelvarn_${name} PRIVATE ${QUELVARN_PCH})
endfunction()
