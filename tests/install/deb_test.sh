#!/usr/bin/env bash
# Installs the Debian packages of DIST with apt-get, then checks them as a new
# user would: the tool, its man page, the Python module, a C host built with
# pkg-config and the Java classes (the README's examples). It changes the
# system: run it as root on a throwaway machine only (CI, or the copy of a
# fresh Debian 12 that fresh_deb_test.sh makes).
# Usage: deb_test.sh DIST   (DIST holds the *.deb files; examples/ is found beside tests/)
set -euo pipefail
dist=$(realpath "$1")
examples=$(cd "$(dirname "$0")/../../examples" && pwd)
work=$(mktemp -d)
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
fail() { echo "FAILED: $1: $2"; exit 1; }

apt-get update -qq
# The packages, and what the checks build with (a compiler and a JDK).
apt-get install -y -qq "$dist"/libvela0_*.deb "$dist"/libvela-dev_*.deb "$dist"/vela_*.deb \
  "$dist"/python3-vela_*.deb "$dist"/libvela-java_*.deb man-db gcc libc6-dev pkgconf \
  default-jdk-headless >"$work/apt.log" || { tail -20 "$work/apt.log"; exit 1; }

said=$(vela -l ru 21руб)
[ "$said" = "двадцать один рубль" ] || fail "vela -l ru 21руб" "$said"
[ "$(vela --version)" = "vela $(pkg-config --modversion vela)" ] || fail "vela --version" "$(vela --version)"

grep -q '^ExecStart=/usr/bin/vela serve' /lib/systemd/system/vela.service ||
  fail "vela.service" "not installed in /lib/systemd/system"

page=$(MANPAGER=cat MANWIDTH=100 man vela 2>&1)
case "$page" in *"vela units [-l TAG]"*) ;; *) fail "man vela" "$(echo "$page" | head -5)" ;; esac

# Debian's interpreter: a python3 earlier on PATH (pyenv, a venv) does not
# look in /usr/lib/python3/dist-packages, where python3-vela puts the module.
said=$(cd / && /usr/bin/python3 -c 'import vela; print(vela.speak("ru", "21руб"), vela.__version__)')
[ "$said" = "['двадцать', 'один', 'рубль'] $(pkg-config --modversion vela)" ] || fail "python3 -c 'import vela'" "$said"

# shellcheck disable=SC2046
cc -std=c11 -Wall -Werror "$examples/host.c" $(pkg-config --cflags --libs vela) -o "$work/host"
said=$("$work/host")
[ "$(echo "$said" | head -1)" = '21rub: status 0, names "dvadcat odin rubl"' ] || fail "the C host" "$said"

# The JVM finds the library on its default java.library.path.
/usr/bin/javac -cp /usr/share/java/vela.jar -d "$work" "$examples/Host.java"
said=$(/usr/bin/java -cp "/usr/share/java/vela.jar:$work" Host)
[ "$(echo "$said" | head -1)" = "[двадцать, один, рубль]" ] || fail "the Java host" "$said"
echo "deb test ok: $(cd "$dist" && ls ./*.deb | wc -l) packages installed and checked"
