# One static library a layer. What a layer may include is what it links; tests/architecture checks
# the same rule by reading the includes.

# drafton_layer(<target> [SHARED] [RECURSE] [FOLDERS <dir>...] [EXCEPT <file>...] [SOURCES <file>...]
#               LINKS <targets...>)
# Collects the sources of the folders, without FOLDERS of the one that calls; with RECURSE of those
# below as well. SOURCES come beside them. Include paths start at the top of the tree, so that an
# include line always names the layer that it reaches into.
function(drafton_layer target)
  cmake_parse_arguments(ARG "SHARED;RECURSE" "" "FOLDERS;EXCEPT;SOURCES;LINKS" ${ARGN})
  if(NOT ARG_FOLDERS)
    set(ARG_FOLDERS .)
  endif()
  if(ARG_RECURSE)
    set(glob GLOB_RECURSE)
  else()
    set(glob GLOB)
  endif()
  set(sources ${ARG_SOURCES})
  foreach(folder ${ARG_FOLDERS})
    file(${glob} found RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS
         ${folder}/*.cpp ${folder}/*.h)
    list(APPEND sources ${found})
  endforeach()
  list(REMOVE_ITEM sources "" ${ARG_EXCEPT})
  if(ARG_SHARED)
    add_library(${target} SHARED ${sources})
    if(UNIX AND NOT APPLE)
      # The process's classes are registered from here: the code behind them stays while a module that
      # brought it in comes and goes.
      target_link_options(${target} PRIVATE -Wl,-z,nodelete)
    endif()
  else()
    add_library(${target} STATIC ${sources})
  endif()
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  # What is exported is said where it is declared or, for the module, in its version script; the
  # shared libraries publish all that their headers declare.
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(${target} PUBLIC ${ARG_LINKS})
  drafton_use_precompiled(${target})
endfunction()

# drafton_test(<name> [FOLDER <dir>] [SOURCES <file>...] LINKS <targets...> [ENV <name=value>...]
#              [LABELS <label>...] [TIMEOUT <seconds>])
# One test program for one folder of tests, by default the one that calls; with SOURCES of these files
# alone.
function(drafton_test name)
  cmake_parse_arguments(ARG "" "FOLDER;TIMEOUT" "LINKS;SOURCES;ENV;LABELS" ${ARGN})
  if(NOT ARG_FOLDER)
    set(ARG_FOLDER ${CMAKE_CURRENT_SOURCE_DIR})
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 600)
  endif()
  if(ARG_SOURCES)
    set(sources ${ARG_SOURCES})
  else()
    file(GLOB sources CONFIGURE_DEPENDS ${ARG_FOLDER}/*.cpp)
  endif()
  add_executable(${name} ${sources})
  # The program exports the host's functions, as a real host's executable does.
  set_target_properties(${name} PROPERTIES ENABLE_EXPORTS ON)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE
    TEST_DATA_DIR="${CMAKE_SOURCE_DIR}/tests/data"
    SOURCE_DIR="${CMAKE_SOURCE_DIR}"
    BINARY_DIR="${CMAKE_BINARY_DIR}/bin")
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gtest_main)
  drafton_compile_as_test(${name})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${ARG_ENV}" LABELS "${ARG_LABELS}" TIMEOUT ${ARG_TIMEOUT})
endfunction()
