set(machine i686-w64-mingw32)
# Doubles of 64 bits, as in the 64-bit build. The x87 coprocessor keeps more bits, so equal numbers can compare unequal.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
