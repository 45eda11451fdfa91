# Builds for Windows of 64 bits, from Linux, with MinGW-w64. The programs need no DLL but those of Windows itself, and the
# tests among them run under Wine. For 32 bits, mingw-w64-i686.cmake says so before it includes this.
set(CMAKE_SYSTEM_NAME Windows)
if(NOT CMAKE_SYSTEM_PROCESSOR)
  set(CMAKE_SYSTEM_PROCESSOR x86_64)
endif()
set(ZY_TARGET ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)

set(CMAKE_C_COMPILER ${ZY_TARGET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZY_TARGET}-g++-posix)
set(CMAKE_RC_COMPILER ${ZY_TARGET}-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/with-wine)
endif()

set(CMAKE_FIND_ROOT_PATH /usr/${ZY_TARGET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
