# A layer is a link target that sees only the layers it names.
#
#   xrpt_layer(model LINKS platform)
#
# takes every source below the calling folder (one glob, so that a new card needs no build edit), compiles it with the
# project's warnings and the shared precompiled header, and links the named layers and nothing else.
function(xrpt_layer name)
  cmake_parse_arguments(arg "" "" "LINKS;SOURCES;PRIVATE_LINKS" ${ARGN})
  if(NOT arg_SOURCES)
    file(GLOB arg_SOURCES CONFIGURE_DEPENDS *.cpp *.h draw/*.cpp draw/*.h)
  endif()
  add_library(xrpt_${name} STATIC ${arg_SOURCES})
  add_library(xrpt::${name} ALIAS xrpt_${name})
  target_include_directories(xrpt_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  list(TRANSFORM arg_LINKS PREPEND xrpt::)
  target_link_libraries(xrpt_${name} PUBLIC ${arg_LINKS} PRIVATE xrpt_compiler ${arg_PRIVATE_LINKS})
  xrpt_precompile(xrpt_${name})
endfunction()

# All Qt-free targets share the one precompiled header that `platform` builds.
function(xrpt_precompile target)
  if(target STREQUAL "xrpt_platform")
    target_precompile_headers(xrpt_platform PRIVATE ${CMAKE_SOURCE_DIR}/src/platform/Precompiled.h)
  else()
    target_precompile_headers(${target} REUSE_FROM xrpt_platform)
  endif()
endfunction()
