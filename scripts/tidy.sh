#!/bin/bash
# Runs clang-tidy over every source in the repository, with the checks in .clang-tidy. Uses the flags of preset native
# for the sources that it builds, and those of preset x64 for the others. Both presets must be configured.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages "${tidy_packages[@]}"

# Another version has other findings under the same names.
if ! clang-tidy --version | grep -q 'version 14\.'; then
  echo "clang-tidy: NOT RUN, because .clang-tidy is written for version 14"
  exit 2
fi

for preset in native x64; do
  if [[ ! -f build/$preset/compile_commands.json ]]; then
    echo "clang-tidy: the preset $preset is not configured" >&2
    exit 1
  fi
done

# Prints the sources in the repository that a preset builds.
sources_of() {
  sed -n "s|^ *\"file\": \"$PWD/\(.*\)\",\{0,1\}$|\1|p" "build/$1/compile_commands.json" | sort -u |
    comm -12 - <(git ls-files -- '*.cpp' | sort)
}

# clang does not find the C++ library of the MinGW-w64 compiler by itself.
library=$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++)
cross=(--extra-arg=-isystem"$library" --extra-arg=-isystem"$library/x86_64-w64-mingw32"
  --extra-arg=-Wno-unknown-warning-option)

# Reads the names of sources from the standard input and checks each. Hides the counts of findings:
# tidy PRESET [OPTION...]
tidy() {
  xargs -r -d '\n' -P "$(nproc)" -n 1 clang-tidy --quiet -p "build/$1" "${@:2}" 2> >(
    grep -v -E ' warnings?( and [0-9]+ errors?)? generated| warnings? treated as error' >&2
  )
}

echo "Running clang-tidy over $(git ls-files -- '*.cpp' | wc -l) sources" >&2
status=0
# A source that no preset builds would not be checked.
if git ls-files -- '*.cpp' | sort | comm -23 - <({ sources_of native; sources_of x64; } | sort -u) | grep .; then
  echo "clang-tidy: neither preset builds the sources listed above" >&2
  status=1
fi
sources_of native | tidy native || status=1
comm -13 <(sources_of native) <(sources_of x64) | tidy x64 "${cross[@]}" || status=1
exit "$status"
