# shellcheck shell=bash
# For ./demo.sh --do: runs a program. The first one that is run opens the update of the workstation.
xdotool windowactivate --sync "$MENU_WINDOW" key Right key Down key Right key Down key Return
for _ in $(seq 100); do
  xdotool search --onlyvisible --name '^Auto Update Utility$' >/dev/null && exit
  sleep 0.1
done
exit 1
