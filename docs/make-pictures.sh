#!/bin/bash
# Takes all pictures of the README and of the administrator's guide again.
# Run it on Debian 12: elsewhere Wine draws a little differently, and all pictures should look alike.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

take() {
  ./demo.sh --screenshot "docs/$1.png" "${@:2}"
}
take menu --do docs/open-tree.sh
take properties --do docs/open-properties.sh
take about --do docs/open-about.sh
take update --do docs/open-update.sh
take waiting --without-host
take error --faulty-menu
