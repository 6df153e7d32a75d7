# shellcheck shell=bash
# Runs Windows programs: manages the Wine prefixes below build/wine, the 32-bit Wine beside the system's 64-bit one,
# and the hidden desktop. To be sourced.
#
# Prefix x64 runs 64-bit programs, prefix x86 runs both kinds. A prefix of any other name is a copy of x64.

obrin_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
wine_folder=$obrin_root/build/wine
wine32_root=$wine_folder/root32
# shellcheck source=scripts/steps.sh
source "$obrin_root/scripts/steps.sh"

# Exports the environment in which run_wine runs programs in prefix $1.
use_prefix() {
  local programs=/usr/lib/wine
  if [[ $1 == x86 ]]; then
    programs=$wine32_root/usr/lib/wine
    export LD_LIBRARY_PATH=$wine32_root/lib/i386-linux-gnu:$wine32_root/usr/lib/i386-linux-gnu
  fi
  export WINEPREFIX=$wine_folder/$1 WINEARCH=win64 WINEDEBUG=-all
  # Names loader and server, so that all programs of a prefix use the same server, the one that end_prefix ends.
  export WINELOADER=$programs/wine64 WINESERVER=$programs/wineserver64
  # Left out: the debugger, with which a crash can end with exit code 0; the menu builder, which writes into the
  # developer's own desktop menus; .NET and HTML, which offer a download when a prefix is made.
  export WINEDLLOVERRIDES='winedbg.exe=d;winemenubuilder.exe=d;mscoree=;mshtml='
}

run_wine() {
  "$WINELOADER" "$@"
}

# Runs a program with a time limit: run_wine_for SECONDS PROGRAM ARGUMENT...
run_wine_for() {
  limited "$1" "$WINELOADER" "${@:2}"
}

# Prints the Windows form of an absolute path: drive Z is the root folder in every prefix.
windows_path() {
  printf '%s\n' "Z:${1//\//\\}"
}

# Ends everything that runs in the current prefix.
end_prefix() {
  limited 30 "$WINESERVER" -k || true
  limited 30 "$WINESERVER" -w || true
} </dev/null >/dev/null 2>&1

# Repeats a command until it succeeds, and fails after some seconds: wait_until SECONDS COMMAND...
wait_until() {
  local end=$((SECONDS + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    ((SECONDS < end)) || return 1
    sleep 0.1
  done
}

# Makes the 32-bit Wine. The distribution's package for it cannot be installed beside the tools of the 64-bit
# builds. So this unpacks it into a folder of its own, with a copy of the system's 64-bit half.
make_wine32() {
  local version stamp=$wine32_root/complete apt_folder=$wine_folder/apt32
  version=$(dpkg-query -W -f '${Version}' wine64)
  # Both halves must have the same version. After an update of the system's Wine, this one is made again.
  [[ ! -f $stamp || $(<"$stamp") != "$version" ]] || return 0

  rm -rf "$wine32_root" "$apt_folder"
  mkdir -p "$wine32_root" "$apt_folder"/{state/lists,cache/archives}/partial
  : >"$apt_folder/status"
  # apt-get uses the system's package sources and keys, but lists, downloads and an empty package database in this
  # folder. It installs nothing, so it needs no rights.
  local -a apt=("${apt_get[@]}" -q -o Dir::State="$apt_folder/state" -o Dir::State::status="$apt_folder/status"
    -o Dir::Cache="$apt_folder/cache" -o APT::Architecture=i386 -o APT::Architectures=i386
    -o APT::Sandbox::User="$(id -un)" -o Debug::NoLocking=1 -o Acquire::Retries=3)
  # When one source is down, the others may still have the packages.
  run_step "Reading the lists of 32-bit packages" "$wine_folder/root32-lists.log" limited 600 "${apt[@]}" update || true
  if ! run_step "Downloading the 32-bit Wine (once: 145 MB to download, 730 MB on disk)" "$wine_folder/root32.log" \
    limited 1800 "${apt[@]}" install -y --no-install-recommends --download-only "wine32=$version" "libwine=$version" \
    libxrender1 libxcursor1 libxrandr2 libxfixes3 libxi6 libxcomposite1 libxinerama1 ||
    ! run_step "Unpacking the 32-bit Wine" "$wine_folder/root32-unpack.log" \
      unpack_wine32 "$apt_folder/cache/archives"; then
    echo "There is no 32-bit Wine: 32-bit programs cannot run here" >&2
    return 1
  fi
  rm -rf "$apt_folder"
  printf '%s\n' "$version" >"$stamp"
}

unpack_wine32() {
  local package count=0
  local -a packages=("$1"/*.deb)
  for package in "${packages[@]}"; do
    count=$((count + 1))
    echo "[$count/${#packages[@]}] ${package##*/}"
    # The C library must be of the same version as the loader. Both are in libc6-i386, which the system has.
    [[ ${package##*/} == libc6_* ]] || dpkg -x "$package" "$wine32_root" || return
  done
  mkdir -p "$wine32_root/usr/lib/x86_64-linux-gnu" &&
    ln -s /usr/lib/x86_64-linux-gnu/wine "$wine32_root/usr/lib/x86_64-linux-gnu/wine" &&
    cp /usr/lib/wine/{wine64,wineserver64} "$wine32_root/usr/lib/wine/" &&
    # In an installation, a script of the package copies this file.
    cp /usr/lib/x86_64-linux-gnu/wine/i386-windows/zlib1.dll "$wine32_root/usr/lib/i386-linux-gnu/wine/i386-windows/"
}

# Makes prefix $1 if it is missing or outdated, and selects it.
select_prefix() {
  mkdir -p "$wine_folder"
  (
    # Two runs at a time would remove each other's unfinished prefixes.
    exec 9>"$wine_folder/making.lock"
    if ! flock -n 9; then
      echo "Waiting for another run that makes a Wine prefix" >&2
      flock -w 3600 9 || exit
    fi
    prepare_prefix "$1" 9>&-
  ) || return
  use_prefix "$1"
}

# Makes prefix $1 unless it is up to date.
prepare_prefix() {
  local stamp recipe=2 # to be raised when prefixes must be made anew
  if [[ $1 == x86 ]]; then
    make_wine32 || return
  elif [[ $1 != x64 ]]; then
    prepare_prefix x64 || return
  fi
  use_prefix "$1"
  stamp=$WINEPREFIX/complete
  recipe+=" $(dpkg-query -W -f '${Version}' wine64)"
  [[ ! -f $stamp || $(<"$stamp") != "$recipe" ]] || return 0

  if [[ -d $WINEPREFIX ]]; then
    end_prefix
    rm -rf "$WINEPREFIX"
  fi
  if [[ $1 != x64 && $1 != x86 ]]; then
    # The stamp is written last, so an unfinished copy is made again.
    mkdir "$WINEPREFIX" &&
      cp -a "$wine_folder"/x64/{.update-timestamp,dosdevices,drive_c,pristine} "$WINEPREFIX" &&
      restore_registry || return
  else
    mkdir "$WINEPREFIX"
    if ! run_step "Making the Wine prefix ${WINEPREFIX#"$obrin_root"/} (once, about 15 s)" "$wine_folder/$1.log" \
      fill_prefix; then
      end_prefix
      return 1
    fi
  fi
  printf '%s\n' "$recipe" >"$stamp"
}

# Restores the registry that the current prefix had when it was new. The server must not run.
restore_registry() {
  cp "$WINEPREFIX"/pristine/*.reg "$WINEPREFIX"
}

fill_prefix() {
  # Without a display, so that Wine shows no window on the developer's.
  (unset DISPLAY && run_wine_for 300 wineboot -i) || return
  # Wine finds its fonts for dialogs only in the prefix itself. Without them, dialogs fall back to a wide font.
  cp /usr/share/wine/fonts/*.{ttf,fon} "$WINEPREFIX/drive_c/windows/Fonts/" || return
  # Free fonts in place of those of Windows, and the colour of links.
  cat >"$WINEPREFIX/drive_c/prefix.reg" <<'REG' || return
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Arial"="Liberation Sans"
"Comic Sans MS"="Comic Neue"
"Courier New"="Liberation Mono"
"Georgia"="Liberation Serif"
"Times New Roman"="Liberation Serif"

[HKEY_CURRENT_USER\Control Panel\Colors]
"HotTrackingColor"="0 102 204"
REG
  (unset DISPLAY && run_wine_for 60 regedit /S 'C:\prefix.reg') || return
  # The server writes the registry to disk when it ends.
  end_prefix
  grep -q 'Comic Neue' "$WINEPREFIX/user.reg" || return
  mkdir "$WINEPREFIX/pristine" && cp "$WINEPREFIX"/*.reg "$WINEPREFIX/pristine" || return
  # Wine links Documents, Desktop and the like to the developer's home folder, where no test may write.
  local link
  while IFS= read -r link; do
    rm "$link" && mkdir "$link" || return
  done < <(find "$WINEPREFIX/drive_c/users" -type l)
}

# Runs a command in a prefix on a hidden desktop: in_session PREFIX COMMAND...
# The command is alone in the prefix, which gets a fresh registry; all its processes are ended afterwards. Within a
# session of the same prefix, this only runs the command.
in_session() {
  local prefix=$1
  shift
  if [[ ${OBRIN_SESSION-} == "$prefix" ]]; then
    "$@"
    return
  fi
  select_prefix "$prefix" || return
  (
    exec 9>"$WINEPREFIX.lock"
    if ! flock -n 9; then
      echo "Waiting for another run in ${WINEPREFIX#"$obrin_root"/} to end" >&2
      flock -w 3600 9 || return
    fi
    trap end_session EXIT
    export OBRIN_SESSION=$prefix
    # Tries twice, because on a loaded machine the desktop sometimes does not start.
    # Programs do not inherit the lock, as they may outlive this shell for a moment.
    {
      { start_session || { end_session && start_session; }; } && "$@"
    } 9>&-
  )
}

session_processes=()

end_session() {
  end_prefix
  if ((${#session_processes[@]} > 0)); then
    kill "${session_processes[@]}" 2>/dev/null || true
    wait_until 10 session_processes_ended || kill -KILL "${session_processes[@]}" 2>/dev/null || true
    wait "${session_processes[@]}" || true
    session_processes=()
  fi
}

session_processes_ended() {
  ! kill -0 "${session_processes[@]}"
}

start_session() {
  run_step "Starting the hidden desktop" "$WINEPREFIX-desktop.log" start_desktop_programs
}

# Starts the display, the window manager and one program that keeps Wine's own processes running.
# Their output goes to /dev/null: a reader of this script's output through a pipe would wait until they end, too.
start_desktop_programs() {
  local display number
  # A session that was interrupted may have left processes.
  end_prefix
  restore_registry || return

  # Not by xvfb-run, which leaves the display server running when a signal ends it.
  exec {display}< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp </dev/null 2>/dev/null)
  session_processes+=($!)
  if ! read -r -t 20 -u "$display" number; then
    echo "The display server did not start" >&2
    return 1
  fi
  exec {display}<&-
  export DISPLAY=:$number
  unset XAUTHORITY

  openbox --sm-disable </dev/null >/dev/null 2>&1 &
  session_processes+=($!)
  # Wine ends its desktop and its services with the last program that has a window. Starting them for each test takes
  # seconds, and they would inherit the test runner's pipe. So one minimised program keeps running.
  if ! wait_until 30 window_manager_runs || ! run_wine_for 60 start /min winemine </dev/null >/dev/null 2>&1 ||
    ! wait_until 30 minimised_program_has_window; then
    echo "The hidden desktop did not start" >&2
    return 1
  fi
}

window_manager_runs() {
  timeout 5 xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}

# Once the program has its window, Wine's desktop and services also run.
minimised_program_has_window() {
  timeout 5 xprop -root _NET_CLIENT_LIST | grep -q 'window id # 0x'
}
