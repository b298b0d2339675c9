# Builds of the project. Sourced by run.sh and test.sh, in the repository's root.

section() { printf '\n== %s\n' "$1"; }

build_release() {
  cmake --preset release >build/release-configure.log 2>&1 || { cat build/release-configure.log; return 1; }
  cmake --build --preset release --target stage
}

build_release_with_tests() {
  section "release build"
  build_release
  cmake --build --preset release
}

# The logic's tests only: the toolkit itself is not built for the sanitizers.
build_sanitized() {
  cmake --preset asan >build/asan-configure.log 2>&1 || { cat build/asan-configure.log; return 1; }
  cmake --build --preset asan
}

# The other compiler sees every file, tests too; nothing of it runs.
build_with_clang() {
  cmake --preset clang >build/clang-configure.log 2>&1 || { cat build/clang-configure.log; return 1; }
  cmake --build --preset clang
}

check_format() {
  git ls-files '*.cpp' '*.hpp' | grep -v code_page_tables.cpp | xargs clang-format-14 --dry-run --Werror
}

build_fuzzers() {
  cmake --preset fuzz >build/fuzz-configure.log 2>&1 || { cat build/fuzz-configure.log; return 1; }
  cmake --build --preset fuzz
}

# Each target runs for the given seconds on a corpus of its own; a finding ends the run.
run_fuzzers() {
  local seconds=$1 target name
  for target in build/fuzz/tests/fuzz/*_fuzz; do
    name=$(basename "$target")
    mkdir -p "build/fuzz/corpus/$name"
    echo "$name"
    "$target" -max_total_time="$seconds" -print_final_stats=0 -verbosity=0 -print_funcs=0 -max_len=4096 \
      -artifact_prefix="build/fuzz/$name-" "build/fuzz/corpus/$name"
  done
}
mkdir -p build
