#!/bin/bash
# Shows the menu at work on the demonstration installation. See usage below.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source scripts/packages.sh
source scripts/wine.sh

usage() {
  cat <<'TEXT'
usage: ./demo.sh
  Builds the 64-bit programs, makes a demonstration installation below build/demo and starts the menu in it, on
  this desktop. The installation keeps what the programs write; remove build/demo to start over.
usage: ./demo.sh --screenshot FILE [--dpi N] [--size WxH] [--do SCRIPT]
                 [--without-host | --faulty-menu]
  Does the same for a new user on a hidden desktop, takes a picture of the screen and closes the menu.
  --dpi N      the screen's resolution as Windows programs see it (default: 96)
  --size WxH   the menu window's size in pixels, without its frame
  --do SCRIPT  bash script to run before the picture, which can open a menu or a dialog with xdotool; MENU_WINDOW is
               the menu's window
  --without-host  removes the host first: the picture shows the notice "Waiting for Fenn"
  --faulty-menu   makes a fault in every menu file first: the picture shows the error box
TEXT
}

picture='' dpi=96 size='' script='' fault=''
while (($# > 0)); do
  case $1 in
    --without-host | --faulty-menu)
      fault=$1
      shift
      continue
      ;;
    --screenshot) picture=$(realpath -m "${2:?--screenshot needs a file}") ;;
    --dpi) dpi=${2:?--dpi needs a number} ;;
    --size) size=${2:?--size needs WxH} ;;
    --do) script=$(realpath "${2:?--do needs a script}") ;;
    --help) usage; exit 0 ;;
    *) usage >&2; exit 64 ;;
  esac
  shift 2
done
if [[ ! $dpi =~ ^[1-9][0-9]*$ || ! $size =~ ^([1-9][0-9]*x[1-9][0-9]*)?$ ]]; then
  usage >&2
  exit 64
fi
if [[ -z $picture && (-n $size || -n $script || $dpi != 96 || -n $fault) ]]; then
  usage >&2
  exit 64
fi
if [[ -z $picture && -z ${DISPLAY-} ]]; then
  echo "There is no display to show the menu on (DISPLAY is not set)." >&2
  echo "Run this in a desktop session, or take a picture: ./demo.sh --screenshot FILE" >&2
  exit 1
fi

# Makes the installation below build/$1, and exports the environment of a workstation that uses it.
make_installation() {
  local folder=$obrin_root/build/$1
  mkdir -p "$folder/workstation"/{Tessel,Temp}
  Tessel=$(windows_path "$folder/workstation/Tessel")
  TesselTemp=$(windows_path "$folder/workstation/Temp")
  export Tessel TesselTemp
  demo/make-installation.sh "$folder/host" build/x64/bin
}

show_menu() {
  make_installation demo
  select_prefix demo
  exec 9>"$WINEPREFIX.lock"
  if ! flock -n 9; then
    echo "The demonstration is running already" >&2
    return 1
  fi
  trap end_prefix EXIT
  echo "Starting the menu" >&2
  (cd build/demo/host && run_wine ./ObrinMenu.exe) 9>&- || return
  # The menu has ended. Its host ends by itself soon afterwards.
  timeout 10 "$WINESERVER" -w 9>&- || true
}

# Prints the id of the first visible window with this title. Fails if there is none.
find_window() {
  xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1 | grep .
}

question_is_gone() {
  ! find_window 'Please Select a WSID'
}

# Answers the question for a workstation number if it is open. Succeeds once the expected window is open.
# Callers repeat it, because the question ignores keys at first and the answer may be lost.
reach_expected_window() {
  local box
  if box=$(find_window 'Please Select a WSID'); then
    xdotool windowactivate "$box" key --clearmodifiers ctrl+a type 5 || true
    xdotool key Return
    wait_until 2 question_is_gone || true
  fi
  find_window "$expected_title"
}

menu_has_size() {
  [[ $(xdotool getwindowgeometry --shell "$MENU_WINDOW") == *"WIDTH=${size%x*}"$'\n'"HEIGHT=${size#*x}"$'\n'* ]]
}

# Succeeds if two pictures of the screen, a moment apart, are the same.
screen_is_still() {
  local before
  before=$(import -silent -window root rgb:- | sha256sum)
  sleep 0.3
  [[ $(import -silent -window root rgb:- | sha256sum) == "$before" ]]
}

menu_has_ended() {
  ! kill -0 "$menu_process"
}

close_menu() {
  # A dialog or a menu that the script has opened would take the keys.
  [[ -z $script ]] || xdotool key Escape key Escape key Escape
  xdotool windowactivate "$MENU_WINDOW" key alt+F4
  wait_until 5 menu_has_ended
}

# Says what is wrong, and saves a picture of the whole screen.
give_up() {
  import -silent -window root build/screenshot/failure.png
  echo "$1: see build/screenshot/failure.png" >&2
  return 1
}

take_picture() {
  (cd build/screenshot/host && run_wine ./ObrinMenu.exe) </dev/null >/dev/null 2>&1 &
  menu_process=$!
  wait_until 40 reach_expected_window || give_up "The menu did not appear" || return
  MENU_WINDOW=$(find_window "$expected_title") || return
  export MENU_WINDOW
  if [[ -n $size ]]; then
    xdotool windowsize "$MENU_WINDOW" "${size%x*}" "${size#*x}"
    wait_until 10 menu_has_size || give_up "The menu did not take the size $size" || return
  fi
  if [[ -n $script ]]; then
    limited 60 bash "$script" || give_up "$script failed" || return
  fi
  wait_until 10 screen_is_still || echo "The screen keeps changing; taking the picture all the same"
  # Takes the whole screen, because a popup menu may reach beyond the menu window. The screen shows nothing else.
  import -silent -window root -trim +repage "$picture" || return
  wait_until 20 close_menu || give_up "The menu does not close" || return
  local code=0
  wait "$menu_process" || code=$?
  if ((code != expected_exit_code)); then
    echo "The menu ended with exit code $code" >&2
    return 1
  fi
}

install_packages "${build_packages[@]}" "${wine_packages[@]}" "${font_packages[@]}"
build_preset x64 ObrinMenu Corvel Fenn

if [[ -z $picture ]]; then
  show_menu
else
  # A new prefix, so a new user, each time.
  use_prefix screenshot
  end_prefix
  rm -rf build/screenshot "$wine_folder/screenshot"
  make_installation screenshot
  expected_title='Obrin System Menu'
  expected_exit_code=0
  case $fault in
    --without-host)
      rm build/screenshot/host/Fenn.exe
      expected_title='Waiting for Fenn'
      ;;
    --faulty-menu)
      # In every menu file, because the menu may open any of them first.
      sed -i '2s/^/>>/' build/screenshot/host/*.mnu
      expected_title=ObrinMenu
      expected_exit_code=1
      ;;
  esac
  select_prefix screenshot
  # The menu then shows its folder as S:\host, like one on a share, and not as a path of this machine.
  ln -sfn "$obrin_root/build/screenshot" "$WINEPREFIX/dosdevices/s:"
  printf '\n[Control Panel\\\\Desktop]\n"LogPixels"=dword:%08x\n' "$dpi" >>"$WINEPREFIX/pristine/user.reg"
  mkdir -p "$(dirname "$picture")"
  in_session screenshot run_step "Taking the picture" build/log/picture.txt take_picture
  echo "Took ${picture#"$obrin_root"/}"
fi
