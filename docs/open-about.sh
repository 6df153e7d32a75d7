# shellcheck shell=bash
# For ./demo.sh --do: opens the about box by its access keys.
xdotool windowactivate --sync "$MENU_WINDOW" key alt+h key b
for _ in $(seq 100); do
  xdotool search --onlyvisible --name '^Obrin Software Systems$' >/dev/null && exit
  sleep 0.1
done
exit 1
