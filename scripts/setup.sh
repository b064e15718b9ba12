#!/usr/bin/env bash
# Installs the Debian packages the project builds and tests with; says nothing to do when all are there.
set -euo pipefail
packages=(
  cmake ninja-build g++ clang clang-tidy clang-format libclang-rt-14-dev python3
  g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix
  wine wine64 xvfb xauth x11-utils xdotool imagemagick fonts-vlgothic
  googletest libbenchmark-dev libexpat1-dev
)
missing=()
for package in "${packages[@]}"; do
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] ||
    missing+=("$package")
done
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
