# Debian's cross compiler for 64-bit Windows. What is built runs under Wine on the building machine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# No library of the compiler has to lie beside a program.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# The cross compiler's own linker takes half a minute for a test program, LLD half a second; the compiler would not call
# another one.
find_program(QUELVARN_CLANG clang++)
find_program(QUELVARN_LLD ld.lld)
if(QUELVARN_CLANG AND QUELVARN_LLD)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name OUTPUT_VARIABLE libgcc
    OUTPUT_STRIP_TRAILING_WHITESPACE)
  cmake_path(GET libgcc PARENT_PATH compiler_libraries)
  set(CMAKE_CXX_LINK_EXECUTABLE "${QUELVARN_CLANG} --target=x86_64-w64-mingw32 -fuse-ld=lld -L${compiler_libraries} \
<CMAKE_CXX_LINK_FLAGS> <LINK_FLAGS> <OBJECTS> -o <TARGET> <LINK_LIBRARIES> -lpthread")
endif()
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../scripts/wine_run.sh)
