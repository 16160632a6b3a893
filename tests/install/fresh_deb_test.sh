#!/usr/bin/env bash
# Run on a fresh Debian 12 by ../shared/tools/fresh-machine.sh:
#   ../shared/tools/fresh-machine.sh 'bash tests/install/fresh_deb_test.sh'
# Keeps a copy of the untouched system, builds the packages (which installs
# the build tools here), then installs them in that copy, where nothing else
# was installed, and checks them there (deb_test.sh).
set -euo pipefail
cd "$(dirname "$0")/../.."
clean=/var/tmp/vela-clean-system
rm -rf "$clean" && mkdir -p "$clean"
tar -C / --exclude=./proc --exclude=./sys --exclude=./tmp --exclude=./var/tmp --exclude=./src -cf - . |
  tar -C "$clean" -xf -
mkdir -p "$clean/proc" "$clean/sys" "$clean/tmp" "$clean/var/tmp"
chmod 1777 "$clean/tmp" "$clean/var/tmp"

bash scripts/package.sh

mkdir -p "$clean/check/tests"
cp -r dist examples "$clean/check/"
cp -r tests/install "$clean/check/tests/"
mount --bind /proc "$clean/proc" 2>/dev/null || true
status=0
chroot "$clean" bash /check/tests/install/deb_test.sh /check/dist || status=$?
umount "$clean/proc" 2>/dev/null || true
exit "$status"
