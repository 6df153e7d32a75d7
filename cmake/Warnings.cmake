# The target `strict` holds the warnings for all other targets. Switch WARNINGS_ARE_ERRORS off for a compiler that nobody
# has tried yet.
option(WARNINGS_ARE_ERRORS "A warning ends the build" ON)
add_library(strict INTERFACE)
target_compile_options(strict INTERFACE
  -Wall -Wextra -Wpedantic $<$<BOOL:${WARNINGS_ARE_ERRORS}>:-Werror>
  -Wcast-align -Wcast-qual -Wconversion -Wdouble-promotion -Wextra-semi -Wformat=2
  -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wshadow -Wsign-conversion -Wundef -Wunused
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-branches -Wduplicated-cond -Wlogical-op>
  # GCC 12 warns of overlaps in std::string where there are none.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # GetProcAddress returns one type for all functions, so every use casts it.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-cast-function-type>)
