# GoogleTest for a system that has no package of it: from the sources that Debian installs.
set(KRX8_GOOGLETEST /usr/src/googletest CACHE PATH "Sources of GoogleTest (package googletest)")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory(${KRX8_GOOGLETEST} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
foreach(library gtest gtest_main gmock gmock_main)
  # Its warnings are not ours to mend.
  target_compile_options(${library} PRIVATE -w)
endforeach()
