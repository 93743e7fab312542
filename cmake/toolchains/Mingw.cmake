# What both Windows toolchains share.
set(CMAKE_SYSTEM_NAME Windows)
# The compiler whose standard library has threads.
set(CMAKE_CXX_COMPILER ${KRX8_MINGW}-g++-posix)
set(CMAKE_C_COMPILER ${KRX8_MINGW}-gcc-posix)
set(CMAKE_RC_COMPILER ${KRX8_MINGW}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${KRX8_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# A program or library that needs nothing but the system.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
