#!/usr/bin/env bash
# Installs a build tree into a fresh prefix under it, checks the layout, and
# builds and runs two hosts against the installed tree only: a C program with
# pkg-config, and a CMake project with find_package(vela). With a test jar, also
# runs the JVM tests against the installed jar and library. Without sanitizer
# flags, also imports the installed Python module with Debian's python3, and
# installs it with pip from a copy of the tree.
# Usage: install_test.sh BUILD_DIR CONSUMER_DIR LIBDIR CC CXX [EXTRA_FLAGS] [JVM_TEST_JAR]
set -euo pipefail
build=$(realpath "$1") consumers=$(realpath "$2") libdir=$3 cc=$4 cxx=$5 flags=${6:-} jvm_tests=${7:-}
work=$build/install-test prefix=$build/install-test/prefix
rm -rf "$work" && mkdir -p "$work"

cmake --install "$build" --prefix "$prefix" >"$work/install.log"
for f in "$libdir/libvela.so" "$libdir/libvela.so.0" include/vela/vela.h bin/vela share/java/vela.jar \
  share/man/man1/vela.1 share/vela/demo-voice.sh "$libdir/pkgconfig/vela.pc" \
  "$libdir/cmake/vela/velaConfig.cmake" lib/python3/dist-packages/vela/__init__.py; do
  [ -e "$prefix/$f" ] || { echo "FAILED: $f not installed"; exit 1; }
done

export LD_LIBRARY_PATH=$prefix/$libdir
export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig
# shellcheck disable=SC2046,SC2086
"$cc" $flags -std=c11 -Wall -Werror "$consumers/consumer.c" $(pkg-config --cflags --libs vela) \
  -o "$work/c-consumer"
"$work/c-consumer"

cmake -S "$consumers/cmake_consumer" -B "$work/cmake-consumer" -G Ninja \
  -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$cxx" \
  -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="$flags" >"$work/cmake-consumer.log"
cmake --build "$work/cmake-consumer" >>"$work/cmake-consumer.log"
"$work/cmake-consumer/consumer"

if [ -z "$flags" ]; then
  # The module finds the installed library by itself, wherever the tree lies.
  spoken=$(env -u VELA_LIBRARY -u LD_LIBRARY_PATH PYTHONPATH="$prefix/lib/python3/dist-packages" \
    /usr/bin/python3 -c "import vela; print(vela.speak('ru', '21руб'), vela.library_path)")
  [[ "$spoken" == "['двадцать', 'один', 'рубль'] $prefix/"* ]] ||
    { echo "FAILED: the installed Python module says: $spoken"; exit 1; }
  # pip, offline, from a copy of the tree (the version comes from the header).
  mkdir -p "$work/src" && cp -r "$consumers/../../python" "$consumers/../../include" "$work/src/"
  /usr/bin/python3 -m pip install -q --no-build-isolation --no-index --target "$work/pip" "$work/src/python" \
    >"$work/pip.log" 2>&1 || { cat "$work/pip.log"; exit 1; }
  spoken=$(VELA_LIBRARY=$prefix/$libdir/libvela.so PYTHONPATH=$work/pip /usr/bin/python3 -c \
    "import vela; print(vela.speak('ru', '21руб'), vela.__version__)")
  [ "$spoken" = "['двадцать', 'один', 'рубль'] $(pkg-config --modversion vela)" ] ||
    { echo "FAILED: the module pip installed says: $spoken"; exit 1; }
fi

if [ -n "$jvm_tests" ]; then
  java -Djava.library.path="$prefix/$libdir" -cp "$prefix/share/java/vela.jar:$jvm_tests" VelaJvmTest \
    "$prefix/include/vela/vela.h"
fi
echo "install test ok"
