#!/usr/bin/env bash
# Builds and runs every test twice: a normal build, and a build with the address
# and undefined-behaviour sanitizers. ccache speeds both up when it is installed.
# Both builds are strict: an exception that is not a run-time error aborts the test
# that raised it instead of being logged.
#   BUILD   normal build folder (default: build); the sanitizer build is BUILD-sanitize
#   JOBS    parallel jobs (default: all cores)
set -euo pipefail
cd "$(dirname "$0")/.."

BUILD=${BUILD:-build}
JOBS=${JOBS:-$(nproc)}

run_suite() {
    local dir=$1
    shift
    echo "== building $dir"
    cmake -S . -B "$dir" -G Ninja "$@"
    cmake --build "$dir" -j "$JOBS"
    echo "== testing $dir"
    ctest --test-dir "$dir" --output-on-failure -j "$JOBS"
}

run_suite "$BUILD" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DDISPATCH_STRICT_FAULTS=ON

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$PWD/scripts/lsan.supp}
# The browser drives the same server the HTTP tests drive under the sanitizers; it
# runs once, in the normal build.
run_suite "$BUILD-sanitize" -DCMAKE_BUILD_TYPE=Debug -DDISPATCH_SANITIZE=ON -DDISPATCH_BENCHMARKS=OFF \
    -DDISPATCH_STRICT_FAULTS=ON -DDISPATCH_BROWSER_TESTS=OFF

echo "== all tests passed in both builds"
