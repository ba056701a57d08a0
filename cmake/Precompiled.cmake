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

# Tests have a precompiled header of their own, with gtest in it, and are not optimised: what they
# call is, and compiling them takes longer than running them.
function(drafton_compile_as_test target)
  target_compile_options(${target} PRIVATE -O0)
  if(NOT TARGET drafton_precompiled)
    return()
  endif()
  if(NOT TARGET drafton_precompiled_tests)
    add_library(drafton_precompiled_tests STATIC ${CMAKE_BINARY_DIR}/precompiled.cpp)
    target_compile_options(drafton_precompiled_tests PRIVATE -O0)
    target_link_libraries(drafton_precompiled_tests PRIVATE Qt6::Core GTest::gtest)
    target_precompile_headers(drafton_precompiled_tests
                              PRIVATE ${CMAKE_SOURCE_DIR}/cmake/precompiled_tests.h)
  endif()
  target_precompile_headers(${target} REUSE_FROM drafton_precompiled_tests)
endfunction()
