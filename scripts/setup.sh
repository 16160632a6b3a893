#!/usr/bin/env bash
# Installs every Debian package that building, testing and packaging vela needs.
# Idempotent: when everything is already there it prints nothing and changes nothing.
set -euo pipefail

packages=(
  g++ cmake ninja-build pkg-config
  libboost-regex1.81-dev libboost1.81-dev
  googletest libgtest-dev libgmock-dev libbenchmark-dev
  openjdk-17-jdk-headless
  clang-format clang-tidy
  libicu-dev
  locales
  libsndfile1-dev python3 python3-pytest espeak-ng
  libsoxr-dev libebur128-dev sox
  asterisk-core-sounds-ru asterisk-core-sounds-ru-wav asterisk-core-sounds-en asterisk-core-sounds-en-wav
  clang libclang-rt-14-dev
  cloc
  build-essential debhelper dh-python lintian help2man man-db
  python3-setuptools python3-pip python3-wheel
  chromium chromium-driver python3-selenium wrk
)
# bench/http.sh compares the HTTP service with nginx serving a static file.
[ "${1:-}" = "--http-bench" ] && packages+=(nginx-light)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing ${missing[*]}" >&2
  export DEBIAN_FRONTEND=noninteractive
  "${sudo_cmd[@]}" apt-get update -qq >/dev/null
  "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

# A Windows-1251 locale, so the tests can show that a host's locale changes no answer.
if ! locale -a 2>/dev/null | grep -qix 'ru_RU.cp1251'; then
  "${sudo_cmd[@]}" localedef -i ru_RU -f CP1251 ru_RU.CP1251 >/dev/null 2>&1 || true
fi
