# What every target of ours is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(XRPT_CCACHE ccache)
if(XRPT_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${XRPT_CCACHE})
endif()
find_program(XRPT_MOLD mold)
if(XRPT_MOLD)
  add_link_options(-fuse-ld=mold)
endif()

add_library(xrpt_compiler INTERFACE)
target_compile_options(xrpt_compiler INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(xrpt_compiler INTERFACE -fpch-preprocess)
endif()
if(XRPT_SANITIZE)
  # The null and alignment checks of the undefined-behaviour sanitizer multiply compile time on files full of
  # signal connections; the address sanitizer sees those faults anyway.
  set(sanitize -fsanitize=address,undefined -fno-sanitize=vptr,null,alignment,object-size
               -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_compile_options(xrpt_compiler INTERFACE ${sanitize})
  add_link_options(-fsanitize=address,undefined)
endif()
if(XRPT_FUZZ)
  # So that the fuzzer sees which branches of the library an input reaches.
  target_compile_options(xrpt_compiler INTERFACE -fsanitize=fuzzer-no-link)
endif()
