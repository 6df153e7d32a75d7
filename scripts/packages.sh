# shellcheck shell=bash disable=SC2034
# What every script in the top folder begins with: the distribution's packages that a step needs, and the builds.
# To be sourced.

# googletest are sources: each preset builds them with its own compiler. Their CMake files look for Python.
# mingw-w64-tools has genpeimg, which marks the images that run from a share.
build_packages=(
  cmake ninja-build googletest python3-minimal
  g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools
)
native_packages=(clang libclang-rt-dev clang-format)
tidy_packages=(clang-tidy)
# Makes the administrator's guide from its text.
guide_packages=(cmark-gfm)
# libc6-i386 lets 64-bit Linux start the 32-bit Wine. A window manager, because without one every window that a
# program shows costs two seconds; x11-utils to ask it things; imagemagick takes the pictures.
wine_packages=(wine wine64 libc6-i386 xvfb openbox xdotool x11-utils imagemagick)
# Wine's own bitmap and dialog fonts, and free ones with the proportions of the Windows fonts that the menu asks for.
font_packages=(fonts-wine fonts-comic-neue fonts-liberation)

# Installs those of the named packages that are missing. Asks only the local package database when none is.
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
  fi
  echo "Installing ${missing[*]}"
  # A source that is down is no reason to stop while the packages can be had from the others.
  "${as_root[@]}" apt-get -q -o Acquire::Retries=3 update </dev/null >/dev/null ||
    echo "apt-get update failed; trying with the package lists at hand" >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Acquire::Retries=3 -o Dpkg::Use-Pty=0 \
    install -y --no-install-recommends "${missing[@]}" </dev/null >/dev/null
}

# Configures and builds a preset; what the tools say is shown only when they fail.
build_preset() {
  local log=build/log/build-$1.txt
  mkdir -p build/log
  echo "Building $1"
  if ! { cmake --preset "$1" && cmake --build --preset "$1"; } </dev/null >"$log" 2>&1; then
    cat "$log" >&2
    echo "Building $1 failed" >&2
    return 1
  fi
}
