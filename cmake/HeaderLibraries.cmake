# Libraries that are headers alone, from the packages of Debian.
#
# Such a header serves every system, but it lies among those of Linux, where a compiler for another
# system must not look. That one gets a folder with links to the library's headers.
#
# Makes the target `name` of `header`, such as nlohmann/json.hpp: the file, or the folder around it,
# is all of the library.
function(krx8_add_header_library name header)
  find_path(${name}_INCLUDE_DIR ${header} PATHS /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
  set(folder ${${name}_INCLUDE_DIR})
  if(CMAKE_CROSSCOMPILING)
    string(REGEX REPLACE "/.*" "" entry ${header})
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/headers/${name})
    file(CREATE_LINK ${folder}/${entry} ${PROJECT_BINARY_DIR}/headers/${name}/${entry} SYMBOLIC)
    set(folder ${PROJECT_BINARY_DIR}/headers/${name})
  endif()
  add_library(${name} INTERFACE)
  target_include_directories(${name} SYSTEM INTERFACE ${folder})
endfunction()
