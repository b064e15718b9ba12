#!/usr/bin/env bash
# Runs a command whose output goes into a file, and shows it from there as it grows:
#   scripts/detached_output.sh COMMAND [ARGUMENTS]
# What a program starts through Wine, the system's own processes among it, keeps the program's
# output open for as long as it lives. CTest reads a pipe to its end and would wait for all of them;
# so they hold a file in its place.
set -u
output=$(mktemp)
exec 3>"$output" 4<"$output"
rm -f "$output"
"$@" </dev/null >&3 2>&1 3>&- 4<&- &
command=$!
exec 3>&-
tail --pid="$command" --sleep-interval=0.1 --bytes=+1 --follow <&4 &
shown=$!
wait "$command"
code=$?
wait "$shown"
exit "$code"
