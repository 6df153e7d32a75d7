#!/bin/bash
# Builds the 64-bit programs and runs the benchmarks; arguments go to the benchmark program.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source scripts/packages.sh

install_packages "${build_packages[@]}" "${wine_packages[@]}" "${font_packages[@]}"
build_preset x64
# Wine writes here which files a start opens, for the measurement that counts them.
trace=$PWD/build/bench-trace.txt
OBRIN_TRACE=Z:${trace//\//\\} scripts/run-windows-program.sh build/x64/bin/bench.exe "$@" 2>"$trace" ||
  { tail -n 5 "$trace" >&2 && exit 1; }
