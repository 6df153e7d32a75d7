#!/bin/bash
# Runs a Windows program as if it were a local one: run-windows-program.sh PROGRAM.exe ARGUMENT...
# CMake and ctest start the tests with it. Outside a session (see wine.sh) it makes one, which takes seconds.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/wine.sh
source "$scripts/wine.sh"

# Prints the machine field of an image. The dword at 3C is the offset of a signature of four bytes; the field follows.
image_machine() {
  local header
  header=$(od -An -tu4 -j60 -N4 "$1")
  od -An -tx2 -j$((header + 4)) -N2 "$1" | tr -d ' '
}

program=$1
case $(image_machine "$program") in
  8664) prefix=x64 ;;
  014c) prefix=x86 ;;
  *)
    echo "$program is not a Windows program for x64 or x86" >&2
    exit 126
    ;;
esac

# GoogleTest makes this file when its tests begin, and removes it when they have ended. A program that crashes in
# between may still end with exit code 0.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
TEST_PREMATURE_EXIT_FILE=$(windows_path "$scratch/tests-are-running")
export TEST_PREMATURE_EXIT_FILE

# Runs the program. If a test program fails without output, runs it again, at most twice: on a loaded machine Wine
# sometimes does not start a program, and a test that has begun always prints something. Not on a terminal, where the
# output should appear at once.
run_program() {
  local tries=1 result=0
  if [[ $program != *_tests.exe || -t 1 ]]; then
    run_wine "$@"
    return
  fi
  run_wine "$@" >"$scratch/output" || result=$?
  while ((result != 0 && tries < 3)) && [[ ! -s $scratch/output ]]; do
    tries=$((tries + 1))
    result=0
    run_wine "$@" >"$scratch/output" || result=$?
  done
  cat "$scratch/output"
  return "$result"
}

status=0
in_session "$prefix" run_program "$@" || status=$?
# Wine's own messages are off, so a program that cannot be loaded prints nothing.
((status == 0)) || echo "$program: exit code $status" >&2
if [[ -e $scratch/tests-are-running ]]; then
  echo "$program ended in the middle of its tests" >&2
  ((status != 0)) || status=1
fi
exit "$status"
