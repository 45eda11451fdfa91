# Builds for Windows of 32 bits.
set(CMAKE_SYSTEM_PROCESSOR i686)
# A Windows of its own: one that was made where Wine had no part for 32 bits never gets it.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_COMMAND} -E env ZY_WINE=32 ${CMAKE_CURRENT_LIST_DIR}/../scripts/with-wine)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
