#!/usr/bin/env bash
# Runs one Windows program through Wine:  scripts/wine_run.sh PROGRAM.exe [ARGUMENTS]
# Wine gets a prefix of its own inside the build folder (made on first use, with the font
# replacement that lets Japanese text show) and an Xvfb display when there is none. With TAVIX_DESKS
# set the program gets a desk, as the test run wants it: scripts/wine_desk.sh.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
[ -z "${TAVIX_DESKS:-}" ] || exec "$root/scripts/wine_desk.sh" "$@"
source "$root/scripts/wine_environment.sh"
tavix_wine_prefix
if [ -n "${DISPLAY:-}" ]; then
  exec "$TAVIX_WINE" "$@"
fi
tavix_display
trap 'kill "$TAVIX_XVFB"' EXIT
# Wine's desktop process outlives the program by a moment, and says that the display is gone.
"$TAVIX_WINE" "$@" 2> >(grep --line-buffered -v -e '^X connection to' -e '^XIO: ' \
  -e '^ *after [0-9]* requests' >&2)
