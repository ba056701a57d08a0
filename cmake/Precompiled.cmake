# One precompiled header for the whole tree: it holds nothing of the tree itself, so it is made once.
# Without it (DRAFTON_PCH=OFF, and always for the fuzzers) every source shows that it includes what
# it uses.

option(DRAFTON_PCH "Compile the headers of Qt and the standard library once" ON)

if(DRAFTON_PCH AND NOT DRAFTON_FUZZ)
  file(WRITE ${CMAKE_BINARY_DIR}/precompiled.cpp "")
  add_library(drafton_precompiled STATIC ${CMAKE_BINARY_DIR}/precompiled.cpp)
  target_link_libraries(drafton_precompiled PRIVATE Qt6::Core)
  target_precompile_headers(drafton_precompiled PRIVATE ${CMAKE_SOURCE_DIR}/cmake/precompiled.h)
endif()

function(drafton_use_precompiled target)
  if(TARGET drafton_precompiled)
    target_precompile_headers(${target} REUSE_FROM drafton_precompiled)
  endif()
endfunction()
