#!/usr/bin/env bash
# Lays out the project's C++ files as .clang-format says:
#   scripts/format.sh           rewrites them
#   scripts/format.sh --check   changes nothing, names the files that differ and fails for them
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Every C++ file git knows or would know, new ones included.
mapfile -d '' files < <(git ls-files -z --cached --others --exclude-standard -- '*.h' '*.cpp')
present=()
for file in "${files[@]}"; do
  [ -f "$file" ] && present+=("$file")
done
[ ${#present[@]} -gt 0 ] || { echo "no C++ files found: is this a git checkout?" >&2; exit 2; }

case "${1:-}" in
  "")
    clang-format -i "${present[@]}"
    ;;
  --check)
    if report=$(clang-format --dry-run --Werror "${present[@]}" 2>&1); then
      echo "${#present[@]} files are laid out as .clang-format says."
    else
      grep -E '^[^: ]+:[0-9]+:' <<<"$report" | cut -d: -f1 | sort -u || echo "$report"
      echo "Run scripts/format.sh to lay these files out."
      exit 1
    fi
    ;;
  *)
    echo "usage: scripts/format.sh [--check]" >&2
    exit 2
    ;;
esac
