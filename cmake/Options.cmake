# Where an installed tree keeps its libraries; programs in bin/ find them from there.
set(KRX8_LIBRARY_FOLDER lib/krx8)

option(KRX8_TESTS "Build the tests" ON)
option(KRX8_BENCH "Build the benchmarks" OFF)
option(KRX8_FUZZ "Build the fuzzers, which need clang" OFF)
set(KRX8_SANITIZE "" CACHE STRING "Sanitizers, as in -fsanitize=")
option(KRX8_COVERAGE "Count how often each line and branch runs" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

# The compiler of Windows resources takes none of these.
add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wnon-virtual-dtor;-Werror>")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # False alarms on joined std::strings in optimised builds (gcc bug 105651).
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()
# Full debug information of the toolkit's headers doubles the build for nothing that a test needs.
string(REPLACE "-g" "-g1" CMAKE_CXX_FLAGS_DEBUG "${CMAKE_CXX_FLAGS_DEBUG}")

# Another clone, or another branch, compiles most files anew for nothing.
find_program(KRX8_CCACHE ccache)
if(KRX8_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_CURRENT_LIST_DIR}/CompileCached.sh ${KRX8_CCACHE} ${PROJECT_SOURCE_DIR})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Without it nothing that uses a precompiled header is kept.
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
  endif()
endif()

if(KRX8_SANITIZE)
  add_link_options(-fsanitize=${KRX8_SANITIZE})
elseif(KRX8_COVERAGE)
  add_link_options(--coverage)
endif()

if(KRX8_FUZZ AND NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  message(FATAL_ERROR "The fuzzers are built by clang++, as in the preset fuzz.")
endif()
