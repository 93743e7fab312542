# What differs when programs for Windows are made.
if(NOT WIN32)
  return()
endif()

# An archive holds the libraries for both kinds of hosts.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(KRX8_LIBRARY_FOLDER x64)
else()
  set(KRX8_LIBRARY_FOLDER x86)
endif()

enable_language(RC)
# Objects with templates pass the old format's limit of sections.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wa,-mbig-obj>)
add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
# Unused code goes, functions of the standard library included.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffunction-sections> $<$<COMPILE_LANGUAGE:CXX>:-fdata-sections>)
add_link_options(-Wl,--gc-sections)

if(CMAKE_CROSSCOMPILING)
  set(KRX8_WINE ${PROJECT_SOURCE_DIR}/tools/wine.sh)
endif()
