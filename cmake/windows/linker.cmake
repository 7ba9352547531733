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
