# One target that every target of ours links: the warnings, as errors unless the compiler is one we have not seen.
option(WARNINGS_ARE_ERRORS "A warning ends the build" ON)
add_library(strict INTERFACE)
target_compile_options(strict INTERFACE
  -Wall -Wextra -Wpedantic $<$<BOOL:${WARNINGS_ARE_ERRORS}>:-Werror>
  -Wcast-align -Wcast-qual -Wconversion -Wdouble-promotion -Wextra-semi -Wformat=2
  -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wshadow -Wsign-conversion -Wundef -Wunused
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-branches -Wduplicated-cond -Wlogical-op>
  # GCC 12 sees overlaps in std::string where there are none.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # GetProcAddress hands out one function type for all; the cast from it is the only use.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-cast-function-type>)
