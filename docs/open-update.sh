# shellcheck shell=bash
# For ./demo.sh --do: the update of a workstation, which the first program that runs begins.
xdotool windowactivate --sync "$MENU_WINDOW" key Right key Down key Right key Down key Return
for _ in $(seq 100); do
  xdotool search --onlyvisible --name '^Auto Update Utility$' >/dev/null && exit
  sleep 0.1
done
exit 1
