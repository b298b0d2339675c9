#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests: release build with the real window under a virtual
# display, sanitizer build of the logic, a build of everything with Clang, and the fuzz targets.
#   ./test.sh            everything
#   ./test.sh quick      release tests only
set -euo pipefail
cd "$(dirname "$0")"
source tools/packages.sh
install_packages
source tools/build.sh

section "format"
check_format

build_release_with_tests

passed=0

run_tests() {
  local total
  ctest --test-dir "$1" --output-on-failure -j "$(nproc)" | tee "$1/test.log"
  total=$(sed -n 's/^100% tests passed, 0 tests failed out of \([0-9]*\)$/\1/p' "$1/test.log")
  [ "${total:-0}" -gt 0 ]
  passed=$((passed + total))
}

section "release tests"
run_tests build/release
if [ "${1:-}" != quick ]; then
  section "logic under the sanitizers"
  build_sanitized
  run_tests build/asan

  section "Clang"
  build_with_clang

  section "fuzz targets, ${KESTRI_FUZZ_SECONDS:=60} s each"
  build_fuzzers
  run_fuzzers "$KESTRI_FUZZ_SECONDS"
fi

echo "$passed passed, 0 failed"
