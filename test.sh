#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests: release build with the real window under a virtual
# display, sanitizer build of the logic, and the fuzz targets.
#   ./test.sh            everything
#   ./test.sh quick      release tests only
set -euo pipefail
cd "$(dirname "$0")"
source tools/packages.sh
install_packages
source tools/build.sh
build_release_with_tests

section "release tests"
ctest --test-dir build/release --output-on-failure -j "$(nproc)"
[ "${1:-}" = quick ] && exit 0

section "logic under the sanitizers"
build_sanitized
ctest --test-dir build/asan --output-on-failure -j "$(nproc)"

section "fuzz targets, ${KESTRI_FUZZ_SECONDS:=60} s each"
build_fuzzers
run_fuzzers "$KESTRI_FUZZ_SECONDS"
