# One library a folder. Its includes start at the top of the project ("panel/control/View.h"), so
# that a line of source shows which floor it reaches for.
function(krx8_add_folder name)
  cmake_parse_arguments(ARG "SHARED" "" "SOURCES;LINKS" ${ARGN})
  if(ARG_SHARED)
    add_library(${name} SHARED ${ARG_SOURCES})
  else()
    add_library(${name} STATIC ${ARG_SOURCES})
  endif()
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS})
endfunction()

# One test program, each of its tests known to ctest by name. A prefix keeps tests apart that several
# programs share.
function(krx8_add_tests name)
  cmake_parse_arguments(ARG "" "PREFIX" "SOURCES;LINKS;PRECOMPILE;ENVIRONMENT;PROPERTIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  # What nearly every test includes takes longer to read than the test itself.
  target_precompile_headers(${name} PRIVATE <gtest/gtest.h> <gmock/gmock.h> ${ARG_PRECOMPILE})
  if(KRX8_SANITIZE MATCHES undefined)
    # The code under test is checked, and the tests' own memory; checking also each operation of a
    # test's matchers would double the build.
    target_compile_options(${name} PRIVATE -fno-sanitize=undefined)
  endif()
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gmock GTest::gtest_main)
  # An empty environment would make a variable of the property after it.
  if(ARG_ENVIRONMENT)
    list(APPEND ARG_PROPERTIES ENVIRONMENT "${ARG_ENVIRONMENT}")
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES TEST_PREFIX "${ARG_PREFIX}"
                       PROPERTIES TIMEOUT 120 ${ARG_PROPERTIES})
endfunction()
