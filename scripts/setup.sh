#!/usr/bin/env bash
# Sets a fresh Debian machine up (run as root): installs the packages that are
# missing, builds, writes the demo database, runs the demo session, and starts the
# clerk's screen on the demo database (Ctrl+C stops it).
#   BUILD   build folder (default: build)
#   JOBS    parallel compile jobs (default: all cores)
#   LISTEN  address and port of the clerk's screen (default: 127.0.0.1:8080)
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

BUILD=${BUILD:-build}
JOBS=${JOBS:-$(nproc)}

install_missing_packages
# The released program logs a fault of its own and goes on; the option is named
# because scripts/test.sh turns it on in the same build folder.
cmake -S . -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DDISPATCH_STRICT_FAULTS=OFF
cmake --build "$BUILD" -j "$JOBS"
"$BUILD"/dispatch demo-db "$BUILD"/demo.db --force

echo
echo "== the demo session (tests/sessions/demo.session) =="
"$BUILD"/dispatch session tests/sessions/demo.session

echo
echo "== the clerk's screen =="
exec "$BUILD"/dispatch serve --listen "${LISTEN:-127.0.0.1:8080}"
