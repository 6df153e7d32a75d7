# What both Windows toolchains share; the including file sets `machine`.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${machine}-gcc-posix)
set(CMAKE_CXX_COMPILER ${machine}-g++-posix)
set(CMAKE_RC_COMPILER ${machine}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${machine})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Tests run under Wine, in the prefix and on the display that ./test.sh prepares.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/run-windows-program.sh)
