# shellcheck shell=bash
# For ./demo.sh --do: opens the Properties dialog of a program and shows its page of margins.
xdotool windowactivate --sync "$MENU_WINDOW" key Right key Down key Right key Down key Menu key p
for _ in $(seq 100); do
  if dialog=$(xdotool search --onlyvisible --name '^Properties$'); then
    xdotool windowactivate --sync "$dialog" key Right key Right
    exit
  fi
  sleep 0.1
done
exit 1
