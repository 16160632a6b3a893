#!/usr/bin/env bash
# Builds the Debian packages from this tree (what git tracks, plus files not yet
# added, less what it ignores) with dpkg-buildpackage, puts them in dist/, and
# runs lintian on them: an error fails, warnings are listed.
#   libvela0 libvela-dev vela python3-vela libvela-java
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh

# The version is set in include/vela/vela.h; debian/changelog must agree.
header=$(awk '/^#define VELA_VERSION_(MAJOR|MINOR|PATCH) / { v = v sep $3; sep = "." } END { print v }' \
  include/vela/vela.h)
changelog=$(dpkg-parsechangelog -S Version)
if [ "$header" != "$changelog" ]; then
  echo "package: debian/changelog is at $changelog, include/vela/vela.h at $header" >&2
  exit 1
fi

# dpkg-buildpackage writes beside the source tree: build in a copy of it.
work=$(mktemp -d /tmp/vela-package.XXXXXX)
trap 'rm -rf "$work"' EXIT
src=$work/vela-$header
mkdir -p "$src"
git ls-files -z --cached --others --exclude-standard | xargs -0 tar -cf - | tar -C "$src" -xf -
(cd "$src" && DEB_BUILD_OPTIONS="noautodbgsym ${DEB_BUILD_OPTIONS:-}" dpkg-buildpackage -us -uc -b -j"$(nproc)" >"$work/build.log" 2>&1) || {
  tail -15 "$work/build.log"
  exit 1
}
rm -rf dist && mkdir dist
cp "$work"/*.deb "$work"/*.changes "$work"/*.buildinfo dist/

# lintian: an error fails; the warnings and notes left are printed.
status=0
lintian --fail-on error --info --tag-display-limit 0 dist/*.changes >dist/lintian.txt 2>&1 || status=$?
grep -v '^running with root' dist/lintian.txt || true
[ "$status" -eq 0 ] || { echo "package: lintian found errors" >&2; exit 1; }
echo "package: $(cd dist && ls *.deb | tr '\n' ' ')in dist/"
