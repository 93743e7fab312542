# Windows programs, 64-bit, made by Debian's mingw-w64.
set(KRX8_MINGW x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/Mingw.cmake)
