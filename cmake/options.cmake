# What every target of the project is compiled with, as one interface target,
# and the one way to add a layer or a test program.

find_program(CCACHE ccache)
if(CCACHE)
  # Headers compiled beforehand are compared by their bytes.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()

add_library(orvane_options INTERFACE)
target_compile_options(orvane_options INTERFACE -Wall -Wextra -Wconversion -Wshadow)
# GCC 12 sees an overlap in every optimised `"text" + std::string` (its bug 105651).
target_compile_options(orvane_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# Before the name of every test, so that one run over several builds tells them apart.
set(ORVANE_PREFIXE "")
if(ORVANE_SANITIZE)
  set(ORVANE_PREFIXE asan.)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Where a process takes long to start, under the sanitizers and under Wine, tests are grouped: many are
# one test of ctest, whose report names what fails.
set(ORVANE_GROUPER ${ORVANE_SANITIZE})
if(CMAKE_CROSSCOMPILING)
  set(ORVANE_GROUPER ON)
endif()

# orvane_parsysteme(variable name ...): the sources of this system, <name>_posix.cpp or
# <name>_windows.cpp.
function(orvane_parsysteme variable)
  set(sources "")
  foreach(nom ${ARGN})
    if(WIN32)
      list(APPEND sources ${nom}_windows.cpp)
    else()
      list(APPEND sources ${nom}_posix.cpp)
    endif()
  endforeach()
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()

# Headers that most sources of a kind include, read once for all of them where ORVANE_PRECOMPILE is on:
# half of the time that a source takes is theirs. A source still names what it uses: other builds have
# none of this.
#   regles: the standard library; fenetres: and Qt; essais: and the test frameworks; each of the tests'
#   has a twin for LONG tests, which are compiled otherwise, see orvane_test.
set(ORVANE_ENTETES_regles <algorithm> <array> <cstdint> <filesystem> <functional> <map> <memory>
  <optional> <set> <span> <string> <string_view> <system_error> <utility> <vector>)
set(ORVANE_ENTETES_fenetres ${ORVANE_ENTETES_regles} <QApplication> <QLabel> <QPainter> <QWidget>)
set(ORVANE_ENTETES_essais ${ORVANE_ENTETES_regles} <gmock/gmock.h> <gtest/gtest.h>)
set(ORVANE_ENTETES_essaisfenetres ${ORVANE_ENTETES_fenetres} <gmock/gmock.h> <gtest/gtest.h>)

# orvane_precompiler(target kind [option ...]): the options are those of the target.
function(orvane_precompiler cible genre)
  if(NOT ORVANE_PRECOMPILE)
    return()
  endif()
  set(entetes orvane_entetes_${genre})
  if(ARGN)
    string(MAKE_C_IDENTIFIER "${entetes}${ARGN}" entetes)
  endif()
  if(NOT TARGET ${entetes})
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/entetes/vide.cpp CONTENT "")
    add_library(${entetes} OBJECT ${PROJECT_BINARY_DIR}/entetes/vide.cpp)
    target_compile_options(${entetes} PRIVATE ${ARGN})
    target_precompile_headers(${entetes} PRIVATE ${ORVANE_ENTETES_${genre}})
    if(genre MATCHES fenetres)
      target_link_libraries(${entetes} PRIVATE Qt6::Widgets)
    endif()
    if(genre MATCHES essais)
      target_link_libraries(${entetes} PRIVATE GTest::gmock GTest::gtest)
    endif()
    target_link_libraries(${entetes} PRIVATE orvane_options)
  endif()
  target_precompile_headers(${cible} REUSE_FROM ${entetes})
endfunction()

# orvane_couche(name SOURCES ... DEPENDS ...): one static library for a folder.
# Its include directory is that folder alone, so a header of a layer that is
# not linked is not found.
function(orvane_couche nom)
  cmake_parse_arguments(A "" "" "SOURCES;DEPENDS" ${ARGN})
  add_library(orvane_${nom} STATIC ${A_SOURCES})
  target_include_directories(orvane_${nom} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(orvane_${nom} PUBLIC ${A_DEPENDS} PRIVATE orvane_options)
  if("${A_DEPENDS}" MATCHES "Qt6::Widgets|qt_")
    orvane_precompiler(orvane_${nom} fenetres)
  elseif(NOT "${A_DEPENDS}" MATCHES "Qt6::")
    orvane_precompiler(orvane_${nom} regles)
  endif()
endfunction()

# orvane_test(name [LONG] SOURCES ... DEPENDS ...): a GoogleTest program, each test known to ctest.
# LONG: its tests compute at length.
# Under the sanitizers the tests' own sources take twice as long to optimise as to compile: only those
# of LONG are worth it, and only these keep one entry a test. Checks of pointers, which a crash would
# show as well, take a third of that time again, and are for the program's sources alone.
function(orvane_test nom)
  cmake_parse_arguments(A "LONG" "" "SOURCES;DEPENDS" ${ARGN})
  add_executable(test_${nom} ${A_SOURCES})
  target_link_libraries(test_${nom} PRIVATE ${A_DEPENDS} orvane_options GTest::gmock GTest::gtest_main)
  if(WIN32 AND A_DEPENDS MATCHES "_qt")
    qt_import_plugins(test_${nom} INCLUDE Qt6::QOffscreenIntegrationPlugin)
  endif()
  set(options "")
  if(ORVANE_SANITIZE)
    list(APPEND options -fno-sanitize=null,alignment,vptr,object-size)
  endif()
  if(ORVANE_SANITIZE AND NOT A_LONG)
    list(APPEND options -O0)
  endif()
  target_compile_options(test_${nom} PRIVATE ${options})
  if(A_DEPENDS MATCHES "_qt")
    orvane_precompiler(test_${nom} essaisfenetres ${options})
  else()
    orvane_precompiler(test_${nom} essais ${options})
  endif()
  if(ORVANE_GROUPER AND NOT (ORVANE_SANITIZE AND A_LONG))
    add_test(NAME ${ORVANE_PREFIXE}${nom} COMMAND test_${nom})
    set_tests_properties(${ORVANE_PREFIXE}${nom} PROPERTIES TIMEOUT 600)
    return()
  endif()
  gtest_discover_tests(test_${nom} TEST_PREFIX ${ORVANE_PREFIXE}${nom}. NO_PRETTY_VALUES
    DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
