# Sourced by scripts that say what they are doing:  quietly WHAT COMMAND ...
# Runs the command without its output, which is shown only when it fails.

quietly() {
  local what=$1 output start=$SECONDS
  shift
  printf '%s ... ' "$what"
  if output=$("$@" 2>&1); then
    echo "$((SECONDS - start)) s"
  else
    echo "failed:"
    echo "$output"
    return 1
  fi
}
