find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # Without this sloppiness nothing that uses a precompiled header is ever found again.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
  endif()
endif()

if(MSVC)
  # Sources and texts are UTF-8; __cplusplus tells the standard in force; large tables make large object files.
  set(compiler_options /W4 /utf-8 /permissive- /Zc:__cplusplus /bigobj)
else()
  set(compiler_options -Wall -Wextra -Wpedantic -Wno-missing-field-initializers)
endif()
add_compile_options("$<$<COMPILE_LANGUAGE:C,CXX>:${compiler_options}>") # The resource compiler knows none of them.

if(WIN32)
  # Windows 10, wide calls.
  add_compile_definitions(_WIN32_WINNT=0x0A00 WINVER=0x0A00 NOMINMAX WIN32_LEAN_AND_MEAN UNICODE _UNICODE)
endif()

if(MINGW AND CMAKE_CROSSCOMPILING)
  include(cmake/windows/linker.cmake)
endif()

if(QUELVARN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -g1)
  add_link_options(-fsanitize=address,undefined)
endif()

if(QUELVARN_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -g1)
  add_link_options(-fsanitize=address,undefined)
endif()
