if(KRX8_SANITIZE)
  set(krx8_instrumentation
      -fsanitize=${KRX8_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
elseif(KRX8_COVERAGE)
  # Several processes of a test program may end at the same time, and add to the same counts.
  set(krx8_instrumentation --coverage -fprofile-update=atomic)
endif()

# Has a library watched by the sanitizers of the build, if any, or its runs counted.
function(krx8_instrument name)
  target_compile_options(${name} PRIVATE ${krx8_instrumentation})
endfunction()

# One library a folder. Its includes start at the top of the project ("panel/control/View.h"), so
# that a line of source shows which floor it reaches for.
function(krx8_add_folder name)
  cmake_parse_arguments(ARG "SHARED" "" "SOURCES;LINKS" ${ARGN})
  if(ARG_SHARED)
    add_library(${name} SHARED ${ARG_SOURCES})
  else()
    add_library(${name} STATIC ${ARG_SOURCES})
  endif()
  krx8_instrument(${name})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS})
endfunction()

# One test program, each of its tests known to ctest by name. A prefix keeps tests apart that several
# programs share. APART is a program that takes so long that an emulator runs it beside the others.
#
# Under sanitizers the code under test is checked, and the libraries that tests share; where runs are
# counted, the same. The tests' own sources are compiled as ever, which spares half the build: ccache
# has them from the preset dev. Not so those under TEMPLATES, which are tests of templates and so
# compile the code under test themselves. And ctest knows the program as a few shards, since starting
# a process costs more than most tests.
function(krx8_add_tests name)
  cmake_parse_arguments(ARG "APART" "PREFIX"
                        "SOURCES;TEMPLATES;LINKS;PRECOMPILE;ENVIRONMENT;PROPERTIES" ${ARGN})
  # Templates first: of functions that several sources compile, the linker takes the first.
  add_executable(${name} ${ARG_TEMPLATES} ${ARG_SOURCES})
  if(krx8_instrumentation AND ARG_TEMPLATES)
    # A precompiled header serves only sources that are compiled as it was.
    set_source_files_properties(${ARG_TEMPLATES} PROPERTIES
      COMPILE_OPTIONS "${krx8_instrumentation}" SKIP_PRECOMPILE_HEADERS ON)
  endif()
  # What nearly every test includes takes longer to read than the test itself.
  target_precompile_headers(${name} PRIVATE <gtest/gtest.h> <gmock/gmock.h> ${ARG_PRECOMPILE})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gmock GTest::gtest_main)
  # An empty environment would make a variable of the property after it.
  if(ARG_ENVIRONMENT)
    list(APPEND ARG_PROPERTIES ENVIRONMENT "${ARG_ENVIRONMENT}")
  endif()
  if(CMAKE_CROSSCOMPILING)
    set(system wine)
    if(ARG_APART)
      set(system wine-${name})
    endif()
    krx8_add_emulated(${name} "${ARG_PREFIX}" ${system} ${ARG_PROPERTIES})
    return()
  endif()
  if(krx8_instrumentation)
    krx8_add_shards(${name} "${ARG_PREFIX}" ${ARG_PROPERTIES})
    return()
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES TEST_PREFIX "${ARG_PREFIX}"
                       PROPERTIES TIMEOUT 120 ${ARG_PROPERTIES})
endfunction()

# The tests of a program as a few processes that can run at the same time.
function(krx8_add_shards name prefix)
  set(count 4)
  math(EXPR last "${count} - 1")
  foreach(index RANGE ${last})
    set(shard "${prefix}${name}.${index}")
    add_test(NAME ${shard}
             COMMAND ${CMAKE_COMMAND} -E env GTEST_TOTAL_SHARDS=${count} GTEST_SHARD_INDEX=${index}
                     GTEST_BRIEF=1 $<TARGET_FILE:${name}>)
    set_tests_properties(${shard} PROPERTIES TIMEOUT 600 ${ARGN})
  endforeach()
endfunction()

# The tests of a program for another system as one process, since starting one there takes longest.
# Programs that share an emulated system take turns; one that takes long has a system to itself.
function(krx8_add_emulated name prefix system)
  set(test "${prefix}${name}")
  # Relative, as the two systems write full paths in different ways.
  set(result ${test}.xml)
  add_test(NAME ${test}
           COMMAND ${KRX8_WINE} ${PROJECT_BINARY_DIR}/${system} --result ${result}
                   $<TARGET_FILE:${name}> --gtest_brief=1 --gtest_output=xml:${result})
  set_tests_properties(${test} PROPERTIES TIMEOUT 600 RESOURCE_LOCK ${system}
                       FIXTURES_REQUIRED ${system} ${ARGN})
  # The emulator ends a program that takes too long together with what it has started.
  get_test_property(${test} TIMEOUT longest)
  math(EXPR longest "${longest} - 20")
  set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT KRX8_WINE_SECONDS=${longest})
  krx8_end_emulated(${system})
endfunction()

# Ends an emulated system after its tests.
function(krx8_end_emulated system)
  get_property(is_ended GLOBAL PROPERTY krx8_ends_${system})
  if(NOT is_ended)
    set_property(GLOBAL PROPERTY krx8_ends_${system} ON)
    add_test(NAME ${system}_ends COMMAND ${KRX8_WINE} ${PROJECT_BINARY_DIR}/${system} --stop)
    set_tests_properties(${system}_ends PROPERTIES FIXTURES_CLEANUP ${system} TIMEOUT 60)
  endif()
endfunction()
