#!/usr/bin/env bash
# Runs one Windows test program beside others:  TAVIX_DESKS=2 scripts/wine_desk.sh PROGRAM.exe [...]
# A desk is a Wine prefix and a display of its own, so that programs share neither focus nor pointer
# nor registry. There are TAVIX_DESKS of them; with none free this waits for one. A program that is
# not done after TAVIX_PATIENCE seconds (540) is ended, and nothing that it started outlives it.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

desks="$root/build/wine-desks"
mkdir -p "$desks"
desk=
while [ -z "$desk" ]; do
  for number in $(seq "$TAVIX_DESKS"); do
    exec 8>"$desks/$number.taken"  # held until this script ends
    if flock -n 8; then
      desk="$desks/$number"
      break
    fi
  done
  [ -n "$desk" ] || sleep 0.1
done

unset DISPLAY
export TAVIX_WINEPREFIX="$desk"
source "$root/scripts/wine_environment.sh"
leave() {
  tavix_wineserver -k 8>&-
  [ -z "${TAVIX_XVFB:-}" ] || kill "$TAVIX_XVFB"
}
trap leave EXIT
if [ ! -e "$desk/.desk" ]; then
  tavix_wine_prefix
  # No window manager runs here, and Wine would wait two seconds for one at each window shown.
  tavix_display
  tavix_prefix_step reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f 8>&-
  touch "$desk/.desk"
fi
tavix_display

code=0
timeout --kill-after=5 "${TAVIX_PATIENCE:-540}" "$TAVIX_WINE" "$@" 8>&- || code=$?
[ "$code" -ne 124 ] || echo "Ended after ${TAVIX_PATIENCE:-540} s without an answer."
exit "$code"
