#!/bin/bash
# Runs clang-tidy over every source of ours, by .clang-tidy: the rules and what is made of them alone as they build on
# this machine, the rest as it builds for Windows. Both presets must have been configured.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages "${tidy_packages[@]}"

# Others find other things under the same names, and say less or more with each year.
if ! clang-tidy --version | grep -q 'version 14\.'; then
  echo "clang-tidy: NOT RUN, as it is not the version 14 that the findings are settled with"
  exit 2
fi

for preset in native x64; do
  if [[ ! -f build/$preset/compile_commands.json ]]; then
    echo "clang-tidy: the preset $preset is not configured" >&2
    exit 1
  fi
done

# The sources that a preset builds, of those in the repository.
sources_of() {
  sed -n "s|^ *\"file\": \"$PWD/\(.*\)\",\{0,1\}$|\1|p" "build/$1/compile_commands.json" | sort -u |
    comm -12 - <(git ls-files -- '*.cpp' | sort)
}

# clang's idea of a MinGW-w64 lacks the C++ library of GCC.
library=$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++)
cross=(--extra-arg=-isystem"$library" --extra-arg=-isystem"$library/x86_64-w64-mingw32"
  --extra-arg=-Wno-unknown-warning-option)

tidy() {
  xargs -r -d "\n" -P "$(nproc)" -n 1 clang-tidy --quiet -p "build/$1" "${@:2}" 2> >(grep -v -E " warnings?( and [0-9]+ errors?)? generated| warnings? treated as error" >&2)
}

status=0
# Nothing is left out: each source is one that a preset builds.
if git ls-files -- '*.cpp' | sort | comm -23 - <({ sources_of native; sources_of x64; } | sort -u) | grep .; then
  echo "clang-tidy: neither preset builds these" >&2
  status=1
fi
sources_of native | tidy native || status=1
comm -13 <(sources_of native) <(sources_of x64) | tidy x64 "${cross[@]}" || status=1
exit "$status"
