#!/usr/bin/env bash
# Sets up the machine, builds, and runs every test: once in a normal build
# (build/), once under AddressSanitizer + UndefinedBehaviorSanitizer
# (build-asan/), the multi-thread tests under ThreadSanitizer (build-tsan/),
# the Debian packages, then the Windows DLLs under wine.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
# CTest also runs the Python module's pytest suite (python.module) in the normal build.
jobs=$(nproc)

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j "$jobs"
ctest --test-dir build --output-on-failure -j "$jobs"

# The differential test's generated corpus is smaller here: the sanitizers and
# the unoptimised regular-expression engine make each text far slower.
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVELA_SANITIZE=ON -DVELA_BUILD_BENCH=OFF >/dev/null
cmake --build build-asan -j "$jobs"
VELA_DIFFERENTIAL_TEXTS=20000 ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
  UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
  ctest --test-dir build-asan --output-on-failure -j "$jobs"

# Requests on several threads at once, every grammar and both modes: no data race.
cmake -S . -B build-tsan -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELA_TSAN=ON -DVELA_BUILD_BENCH=OFF >/dev/null
cmake --build build-tsan -j "$jobs" --target vela_tests
TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1 \
  build-tsan/tests/vela_tests --gtest_filter='ThreadsTest.*'

# The Debian packages, built from this tree and checked by lintian (a few
# minutes); on CI, a throwaway machine, also installed with apt and tried as a
# user would (tests/install/deb_test.sh).
bash scripts/package.sh
if [ "${CI:-}" = true ]; then
  bash tests/install/deb_test.sh dist
fi

# The Windows DLLs, cross-built and checked under wine (a few minutes; more the
# first time on a machine, when it installs mingw-w64 and wine).
bash scripts/windows.sh
