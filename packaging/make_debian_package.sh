#!/usr/bin/env bash
# Builds the release and makes the Debian packages vyxdisplay and libkorvane-dev of it, in build/release/packages. lintian
# looks over them where it is installed; errors that it finds are ours.
set -euo pipefail
cd "$(dirname "$0")/.."

packaging/install_build_packages.sh package
cmake --preset release >/dev/null
cmake --build --preset release --target programs
rm -rf build/release/packages
(umask 022 && cpack --config build/release/CPackConfig.cmake)
ls -l build/release/packages/*.deb
if command -v lintian >/dev/null; then
    lintian --allow-root --fail-on error build/release/packages/*.deb
fi
