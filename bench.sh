#!/bin/bash
# Builds the 64-bit programs and runs the benchmarks; arguments go to the benchmark program.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source scripts/packages.sh
source scripts/wine.sh

measure() {
  # In one measurement Wine writes the calls of a program to this file, and the benchmark program counts them.
  local result=0 trace=$PWD/build/bench-trace.txt
  start_watching "Measuring (everything: about four minutes)" /dev/null
  # shellcheck disable=SC2094
  OBRIN_TRACE=$(windows_path "$trace") scripts/run-windows-program.sh build/x64/bin/bench.exe "$@" 2>"$trace" |
    show_rows || result=$?
  stop_watching "Measured"
  ((result == 0)) || tail -n 5 "$trace" >&2
  return "$result"
}

# Prints each row as it comes. On a terminal, the row overwrites the progress line.
show_rows() {
  local row
  while IFS= read -r row; do
    [[ ! -t 2 ]] || show_status ''
    printf '%s\n' "$row"
  done
}

install_packages "${build_packages[@]}" "${wine_packages[@]}" "${font_packages[@]}"
build_preset x64 bench
in_session x64 measure "$@"
