# shellcheck shell=bash disable=SC2034
# Installs the packages that the scripts need, and builds presets. To be sourced.

# shellcheck source=scripts/steps.sh
source "$(dirname "${BASH_SOURCE[0]}")/steps.sh"

# googletest holds sources: each preset builds them with its own compiler. Their CMake files look for Python.
# mingw-w64-tools holds genpeimg: it marks images, so that Windows loads them as a whole from a share.
build_packages=(
  cmake ninja-build googletest python3-minimal
  g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools
)
native_packages=(clang libclang-rt-dev clang-format)
tidy_packages=(clang-tidy)
# cmark-gfm makes the administrator's guide from its text.
guide_packages=(cmark-gfm)
# osslsigncode signs programs. The test of signed archives makes its certificate with openssl.
sign_packages=(osslsigncode)
sign_test_packages=(openssl)
# libc6-i386 lets 64-bit Linux start the 32-bit Wine. openbox is a window manager: without one every window that a
# program shows costs two seconds. x11-utils holds xprop, which asks it about windows. imagemagick takes the pictures.
wine_packages=(wine wine64 libc6-i386 xvfb openbox xdotool x11-utils imagemagick)
# Wine's own fonts for dialogs, and free fonts as wide as the Windows fonts that the menu asks for.
font_packages=(fonts-wine fonts-comic-neue fonts-liberation)

# Installs the named packages that are missing. If none is missing, it asks only the local package database.
install_packages() {
  local -a missing as_root=()
  mapfile -t missing < <(comm -23 <(printf '%s\n' "$@" | sort -u) \
    <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null | sed -n 's/ installed$//p' | sort -u))
  ((${#missing[@]} > 0)) || return 0

  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Missing packages, and no sudo to install them with: ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
    # sudo asks for the password here, not in the middle of a step.
    sudo -v || return
  fi
  # When one source is down, the others may still have the packages.
  run_step "Reading the lists of packages" build/log/package-lists.txt \
    "${as_root[@]}" apt-get -q -o Acquire::Retries=3 update ||
    echo "Trying with the lists of packages at hand" >&2
  echo "Missing packages: ${missing[*]}" >&2
  echo "In addition, builds and Wine prefixes take 1.5 GB below build/ (4.2 GB after ./test.sh --all)" >&2
  run_step "Installing packages ($(size_of_packages "${missing[@]}"))" build/log/packages.txt \
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive "${apt_get[@]}" -qq -o Acquire::Retries=3 \
    -o Dpkg::Use-Pty=0 install -y --no-install-recommends "${missing[@]}"
}

# Prints how many packages would be installed, including those that they need, and their size:
# "182, 281 MB to download, 1180 MB on disk".
size_of_packages() {
  LC_ALL=C apt-get -o Debug::NoLocking=1 --assume-no install --no-install-recommends "$@" 2>/dev/null | sed -n -E \
    -e 's/^.*upgraded, ([0-9]+) newly installed.*/\1/p' \
    -e 's/^Need to get ([^/]*\/)?(.*) of archives\.$/, \2 to download/p' \
    -e 's/^After this operation, (.*) of additional disk space will be used\.$/, \1 on disk/p' | tr -d '\n'
}

# Configures a preset and builds these targets of it, or all: build_preset PRESET [TARGET...]
build_preset() {
  run_step "Building $1" "build/log/build-$1.txt" configure_and_build "$@"
}

configure_and_build() {
  # Not "cmake --build", which does not end the compilers when it is ended itself.
  cmake --preset "$1" && limited 3600 ninja -C "build/$1" "${@:2}"
}
