# Compiler, linker and cache settings that hold for every target.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # ccache takes precompiled headers for what they are only if it is told to.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
endif()

find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
  add_link_options(-fuse-ld=mold)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# Qt's headers are used as a system's; QString literals and slots stay explicit.
add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Unique symbols would pin the module in memory: dlclose() could never unload it.
  add_compile_options(-fno-gnu-unique)
  # What gcc 12 concludes about data flow after inlining is often wrong, the more so under the
  # sanitizers: such warnings are shown and read, but do not stop the build.
  add_compile_options(-Wno-error=maybe-uninitialized -Wno-error=array-bounds
                      -Wno-error=stringop-overflow -Wno-error=restrict -Wno-error=dangling-pointer)
endif()

if(DRAFTON_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer -O1 -g1)
  add_link_options(-fsanitize=address,undefined)
endif()

if(DRAFTON_FUZZ)
  # The libraries tell the fuzzer which of their ways were gone; fuzzers themselves link its engine.
  # Only gcc's warnings stop a build: clang, which builds nothing but the fuzzers, has others.
  add_compile_options(-fsanitize=fuzzer-no-link -Wno-error)
  add_link_options(-fsanitize=fuzzer-no-link)
endif()
