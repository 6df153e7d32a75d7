#!/bin/bash
# Makes the demonstration installation: a folder with start-demo.cmd, the menu and everything that the menu uses.
# If there is one already, replaces the files that come with the demonstration, and keeps those that the programs have
# written: host configuration, workstation numbers, update register and settings.
set -euo pipefail

usage() {
  cat <<'TEXT'
usage: make-installation.sh TARGET BIN_DIR
  TARGET   folder of the installation
  BIN_DIR  folder that holds ObrinMenu.exe, Corvel.dll and Fenn.exe
TEXT
}

fail() {
  echo "make-installation.sh: $*" >&2
  exit 1
}

if (($# != 2)); then
  usage >&2
  exit 64
fi
target=$1
programs=$2
source="$(cd "$(dirname "$0")" && pwd)/installation"

for program in ObrinMenu.exe Corvel.dll Fenn.exe; do
  [ -f "$programs/$program" ] || fail "$programs/$program is missing"
done

# Never write into a folder that holds something else.
if [ -d "$target" ] && [ -n "$(ls -A "$target")" ]; then
  if ! [ -f "$target/start-demo.cmd" ] || ! [ -d "$target/Core" ]; then
    fail "$target holds something that is not a demonstration installation"
  fi
fi
mkdir -p "$target"

# Copies a file. The texts in the repository are UTF-8 with LF. The programs read the Windows code page with CR LF.
copy_file() {
  local file=$1
  mkdir -p "$(dirname "$target/$file")"
  case "$file" in
    *.bmp) cp "$source/$file" "$target/$file" ;;
    *) sed 's/\r*$/\r/' "$source/$file" | iconv -f UTF-8 -t WINDOWS-1252 >"$target/$file" ;;
  esac
}

while IFS= read -r file; do
  # Keeps the configuration: the menu rewrites it at every start.
  if [ "$file" = FennConfig.Sys ] && [ -f "$target/$file" ]; then
    continue
  fi
  copy_file "$file"
done < <(cd "$source" && find . -type f -printf '%P\n')

# install makes a new file instead of writing into the old one, so a program that runs keeps its file.
install -m 755 -t "$target" "$programs/ObrinMenu.exe" "$programs/Corvel.dll" "$programs/Fenn.exe"
