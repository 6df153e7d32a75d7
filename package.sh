#!/bin/bash
# Makes the archives to hand out. See usage below.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source scripts/packages.sh

usage() {
  cat <<'TEXT'
usage: ./package.sh [--tests]
  Makes dist/ObrinMenu-VERSION-x64.zip and -x86.zip, and SHA256SUMS beside them. The same sources make the same bytes.
  --tests  makes dist/ObrinTests-VERSION-x64.zip instead: the tests for a Windows machine, begun by run-tests.cmd
TEXT
}

component=menu
presets=(x64 x86)
case "$# ${1-}" in
  '0 ') ;;
  '1 --tests')
    component=tests
    presets=(x64)
    ;;
  '1 --help') usage; exit 0 ;;
  *) usage >&2; exit 64 ;;
esac

# The time of the sources for every file: later ones are newer, as tools that copy what is newer expect. In one time
# zone, as archives hold local time.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export SOURCE_DATE_EPOCH TZ=UTC

install_packages "${build_packages[@]}" "${guide_packages[@]}"
mkdir -p dist
# Of another version: SHA256SUMS and the test of the archive are about the one that is made here.
if [[ $component == menu ]]; then rm -f dist/ObrinMenu-*.zip; else rm -f dist/ObrinTests-*.zip; fi
for preset in "${presets[@]}"; do
  build_preset "$preset"
  [[ $component != menu ]] || cmake --build --preset "$preset" --target guide >/dev/null
  work=build/$preset/package
  rm -rf "$work"
  if ! cpack --config "build/$preset/CPackConfig.cmake" -B "$work" -D CPACK_COMPONENTS_ALL="$component" \
    >"build/log/package-$preset.txt" 2>&1; then
    cat "build/log/package-$preset.txt" >&2
    exit 1
  fi
  for archive in "$work"/*.zip; do
    mv "$archive" dist/
    echo "Made dist/${archive##*/}"
  done
done
(cd dist && sha256sum -- *.zip >SHA256SUMS)
