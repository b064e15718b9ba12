# Sourced by the scripts that start Windows programs: where Wine is, its prefix, its display.
# Needs $root, the project's folder.

export WINEPREFIX="${TAVIX_WINEPREFIX:-$root/build/wine-prefix}"
export WINEARCH=win64
export WINEDEBUG="${WINEDEBUG:--all}"
# Without the debugger a program that crashes ends; with it a box waits for somebody to close it.
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree=;mshtml=;winemenubuilder.exe=;winedbg.exe=}"

# The loader itself, past the start script that asks for 32-bit Wine at each start.
TAVIX_WINE=$(command -v /usr/lib/wine/wine64 || command -v wine64 || command -v wine || true)
if [ -z "$TAVIX_WINE" ]; then
  echo "Wine is not installed: run scripts/setup.sh first." >&2
  exit 1
fi

# Makes the prefix once; programs started side by side wait for the first.
tavix_wine_prefix() {
  [ -e "$WINEPREFIX/.ready" ] && return 0
  mkdir -p "$WINEPREFIX"
  (
    flock 9
    [ -e "$WINEPREFIX/.ready" ] && exit 0
    echo "Setting up a Wine prefix in $WINEPREFIX (some ten seconds) ..." >&2
    tavix_display
    trap '[ -z "${TAVIX_XVFB:-}" ] || kill "$TAVIX_XVFB"' EXIT
    # Wine's server outlives the programs it serves: it must not inherit the lock.
    tavix_prefix_step wineboot -u 8>&- 9>&-
    tavix_prefix_step regedit /S "$(tavix_windows_path "$root/scripts/fonts.reg")" 8>&- 9>&-
    tavix_wineserver -w
    touch "$WINEPREFIX/.ready"
  ) 9>"$WINEPREFIX.lock"
}

tavix_prefix_step() {
  "$TAVIX_WINE" "$@" >/dev/null 2>&1 || {
    echo "Setting up the Wine prefix failed at: $*" >&2
    return 1
  }
}

# Waits for the prefix's programs to end (-w), or ends them (-k); fails when none run.
tavix_wineserver() {
  local server
  server=$(command -v /usr/lib/wine/wineserver64 || command -v wineserver || true)
  [ -z "$server" ] || "$server" "$1" || true
}

# A path as a Windows program sees it: the whole Linux tree stands under drive Z.
tavix_windows_path() {
  printf 'Z:%s' "$(realpath -m "$1" | tr / '\\')"
}

# An Xvfb display when there is none; whoever asks for it ends it by TAVIX_XVFB.
tavix_display() {
  [ -n "${DISPLAY:-}" ] && return 0
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 7 -screen 0 "${TAVIX_SCREEN:-1280x1024x24}" -nolisten tcp \
    7>"$number_file" >/dev/null 2>&1 8>&- 9>&- &
  TAVIX_XVFB=$!
  for _ in $(seq 200); do
    [ -s "$number_file" ] && break
    sleep 0.05
  done
  if [ ! -s "$number_file" ]; then
    rm -f "$number_file"
    echo "Xvfb did not start." >&2
    return 1
  fi
  DISPLAY=":$(tr -d '\n' <"$number_file")"
  export DISPLAY
  rm -f "$number_file"
}
