# shellcheck shell=bash
# For ./demo.sh --do: the first system with two headings open and a program selected.
xdotool windowactivate --sync "$MENU_WINDOW" key Right key Down key Right key Down
sleep 0.5
