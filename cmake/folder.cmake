# The headers nearly every file of the core reads, compiled once.
set(QUELVARN_PCH <algorithm> <array> <filesystem> <functional> <map> <memory> <optional> <span> <string> <string_view>
  <variant> <vector> <fmt/format.h>)

# A target that only compiles these headers, for others to reuse.
function(quelvarn_precompiled name) # headers, LINK libraries that bring them
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/${name}.cpp CONTENT "")
  add_library(${name} STATIC ${CMAKE_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE ${ARG_LINK})
  target_precompile_headers(${name} PRIVATE ${ARG_UNPARSED_ARGUMENTS})
endfunction()

# One static library a folder of src/. Its link list is the layering rule: what a folder does not link
# it must not include (`./qv lint` checks the includes as well). EXCLUDE: a pattern of sources that are left out;
# OWN_PCH: the folder precompiles headers of its own.
function(quelvarn_folder name)
  cmake_parse_arguments(ARG "OWN_PCH" "EXCLUDE" "LINK;PRIVATE_LINK" ${ARGN})
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
  if(NOT ARG_OWN_PCH)
    target_precompile_headers(quelvarn_${name} REUSE_FROM quelvarn_pch)
  endif()
endfunction()
