set(machine i686-w64-mingw32)
# Doubles of 64 bits, as in the 64-bit build. The old coprocessor keeps more bits in between, and equal numbers differ.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
