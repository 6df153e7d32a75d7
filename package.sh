#!/bin/bash
# Makes the archives for workstations and for testers. See usage below.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source scripts/packages.sh

usage() {
  cat <<'TEXT'
usage: ./package.sh [--sign FILE.pfx [--timestamp URL]] [--to FOLDER]
  Makes ObrinMenu-VERSION-x64.zip and -x86.zip, and SHA256SUMS beside them. The same sources make the same bytes,
  unless they are signed.
  --sign FILE.pfx  signs the programs and the library with the certificate and key in this file; its password is in
                   the environment variable OBRIN_SIGN_PASSWORD
  --timestamp URL  adds a time stamp of this server (RFC 3161): the signature then outlives the certificate
  --to FOLDER      writes the archives there (default: dist) and removes those of other versions
usage: ./package.sh --tests [--to FOLDER]
  Makes ObrinTests-VERSION-x64.zip: the tests for a Windows machine, started by run-tests.cmd.
Exit code: 0 made, 1 something failed and FOLDER is as it was, 64 wrong arguments.
TEXT
}

component=menu
targets=(ObrinMenu ObrinCheck Corvel)
presets=(x64 x86)
folder=dist
certificate=''
timestamp=()
while (($# > 0)); do
  case $1 in
    --tests)
      component=tests
      targets=()
      presets=(x64)
      shift
      continue
      ;;
    --sign) certificate=${2:?--sign needs a file} ;;
    --timestamp) timestamp=(-ts "${2:?--timestamp needs a URL}") ;;
    --to) folder=${2:?--to needs a folder} ;;
    --help) usage; exit 0 ;;
    *) usage >&2; exit 64 ;;
  esac
  shift 2
done
if [[ $component == tests && -n $certificate || -z $certificate && ${#timestamp[@]} -gt 0 ]]; then
  usage >&2
  exit 64
fi
if [[ -n $certificate ]]; then
  if [[ ! -f $certificate || ! -r $certificate ]]; then
    echo "--sign: there is no file $certificate to read" >&2
    exit 1
  fi
  if [[ -z ${OBRIN_SIGN_PASSWORD+set} ]]; then
    echo "--sign: put the password of $certificate into the environment variable OBRIN_SIGN_PASSWORD" >&2
    exit 1
  fi
fi

# Signs the images in a folder. Nothing may change them afterwards.
sign_images() {
  local image
  for image in "$1"/{ObrinMenu.exe,ObrinCheck.exe,Corvel.dll}; do
    echo "Signing ${image##*/}"
    mv "$image" "$image.unsigned" || return
    if ! limited 120 osslsigncode sign -pkcs12 "$certificate" -readpass <(printf '%s' "$OBRIN_SIGN_PASSWORD") \
      -h sha256 -n 'Obrin menu' "${timestamp[@]}" -in "$image.unsigned" -out "$image"; then
      echo "Could not sign ${image##*/} with $certificate and the password in OBRIN_SIGN_PASSWORD: see above"
      return 1
    fi
    chmod --reference="$image.unsigned" "$image" && rm "$image.unsigned" || return
  done
}

# Puts the files of a built preset into an archive, without folders: make_archive PRESET ARCHIVE
make_archive() {
  local files
  files=$(dirname "$2")/files
  [[ $component != menu ]] || cmake --build --preset "$1" --target guide || return
  cmake --install "build/$1" --component "$component" --prefix "$files" || return
  [[ -z $certificate ]] || sign_images "$files" || return
  (cd "$files" && cmake -E tar cf "$2" --format=zip -- *)
}

# CMake gives this time to every file in an archive. It is that of the last commit, so files of a later version are
# newer, and tools that copy only newer files copy them.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
# An archive holds local times, and its files in the order of the locale. Both must not depend on this machine.
export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C

install_packages "${build_packages[@]}" "${guide_packages[@]}"
[[ -z $certificate ]] || install_packages "${sign_packages[@]}"

declare -A names=([menu]=ObrinMenu [tests]=ObrinTests)
name=${names[$component]}
archives=()
for preset in "${presets[@]}"; do
  build_preset "$preset" "${targets[@]}"
  version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "build/$preset/CMakeCache.txt")
  work=$PWD/build/$preset/package
  rm -rf "$work"
  archives+=("$work/$name-$version-$preset.zip")
  run_step "Packing $preset" "build/log/package-$preset.txt" make_archive "$preset" "${archives[-1]}"
done

mkdir -p "$folder"
rm -f "$folder/$name"-*.zip
for archive in "${archives[@]}"; do
  mv "$archive" "$folder"
  echo "Made $folder/${archive##*/}"
done
(cd "$folder" && sha256sum -- *.zip >SHA256SUMS)
