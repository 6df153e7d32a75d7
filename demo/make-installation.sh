#!/bin/bash
# Builds the demonstration installation: a folder from which start-demo.cmd starts the menu with everything it
# uses. Run again it refreshes what is delivered and keeps what the programs have written: the rewritten host
# configuration, workstation numbers, update register and settings.
set -euo pipefail

usage() {
  cat <<'TEXT'
usage: make-installation.sh [--fresh] TARGET BIN_DIR
  TARGET   folder to build the installation in
  BIN_DIR  folder that holds ObrinMenu.exe, Corvel.dll and Fenn.exe
  --fresh  remove the installation that TARGET holds and start over
TEXT
}

fail() {
  echo "make-installation.sh: $*" >&2
  exit 1
}

fresh=false
folders=()
for argument in "$@"; do
  case "$argument" in
    --fresh) fresh=true ;;
    --help) usage; exit 0 ;;
    -*) usage >&2; exit 2 ;;
    *) folders+=("$argument") ;;
  esac
done
if [ ${#folders[@]} -ne 2 ]; then
  usage >&2
  exit 2
fi

target=${folders[0]}
programs=${folders[1]}
source="$(cd "$(dirname "$0")" && pwd)/installation"

for program in ObrinMenu.exe Corvel.dll Fenn.exe; do
  [ -f "$programs/$program" ] || fail "$programs/$program is missing"
done

# Never into, and above all never in place of, a folder that is something else.
if [ -d "$target" ] && [ -n "$(ls -A "$target")" ]; then
  if ! [ -f "$target/start-demo.cmd" ] || ! [ -d "$target/Core" ]; then
    fail "$target holds something that is not a demonstration installation"
  fi
  if $fresh; then
    find "$target/" -mindepth 1 -delete
  fi
fi
mkdir -p "$target"

# The checked-in texts are UTF-8 with LF. The programs read the Windows code page and CR LF.
deliver() {
  local file=$1
  mkdir -p "$(dirname "$target/$file")"
  case "$file" in
    *.bmp) cp "$source/$file" "$target/$file" ;;
    *) sed 's/\r*$/\r/' "$source/$file" | iconv -f UTF-8 -t WINDOWS-1252 >"$target/$file" ;;
  esac
}

while IFS= read -r file; do
  # The menu rewrites the configuration at every start.
  if [ "$file" = FennConfig.Sys ] && [ -f "$target/$file" ]; then
    continue
  fi
  deliver "$file"
done < <(cd "$source" && find . -type f -printf '%P\n')

# install replaces a file instead of writing into it: a running program keeps its image.
install -m 755 -t "$target" "$programs/ObrinMenu.exe" "$programs/Corvel.dll" "$programs/Fenn.exe"
