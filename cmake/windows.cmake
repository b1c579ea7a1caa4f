# Builds for Windows on Debian: the compiler of mingw-w64, whose threads are those of POSIX.
# Read by Qt's own build (outils/qt-windows) and by the preset `windows`.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(ORVANE_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ORVANE_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ORVANE_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${ORVANE_MINGW}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${ORVANE_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
# Test programs run under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
