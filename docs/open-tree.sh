# shellcheck shell=bash
# Opens two headings of the first system and selects a program. For ./demo.sh --do.
xdotool windowactivate --sync "$MENU_WINDOW" key Right key Down key Right key Down
sleep 0.5
