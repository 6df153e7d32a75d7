# shellcheck shell=bash
# For ./demo.sh --do: opens two headings of the first system and selects a program.
xdotool windowactivate --sync "$MENU_WINDOW" key Right key Down key Right key Down
sleep 0.5
