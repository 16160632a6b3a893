#!/usr/bin/env bash
# Builds vela.dll for 32-bit (i686) and 64-bit (x86_64) Windows with mingw-w64
# (build-win32/, build-win64/, each with an installed tree in dist/), checks
# what each DLL exports and imports, and runs the request table of
# tests/windows under wine: the answers come from the Linux build (build/).
# Installs what it needs (as root, apt-get; idempotent). 64-bit programs run
# under Debian's wine64; 32-bit ones need the i386 wine32, which this script
# never adds to the machine itself: unless it is already installed, they run in
# a Debian 12 chroot with wine32 ($VELA_WINE32_ROOT, default /tmp/vela-win-root,
# made once). Prints one summary line; exits non-zero when anything failed.
set -euo pipefail
cd "$(dirname "$0")/.."
project=$PWD
jobs=$(nproc)
started=$SECONDS
wine32_root=${VELA_WINE32_ROOT:-/tmp/vela-win-root}
passed=0
failed=0

say() { echo "windows: $*" >&2; }
pass() { passed=$((passed + 1)); }
fail() {
  say "FAILED: $*"
  failed=$((failed + 1))
}
# Runs a quiet step, showing its log only when it fails.
quiet() {
  local log=$1
  shift
  if ! "$@" >"$log" 2>&1; then
    tail -30 "$log" >&2
    say "step failed: $* (log: $log)"
    exit 1
  fi
}

installed() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
install_missing() {
  local missing=() p
  for p in "$@"; do installed "$p" || missing+=("$p"); done
  [ ${#missing[@]} -eq 0 ] && return 0
  say "installing ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  "${sudo_cmd[@]}" apt-get update -qq >/dev/null
  "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# ---- packages: the Linux build's, the cross compilers, wine64 ----
bash scripts/setup.sh
install_missing g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix wine64

# ---- the Linux answers ----
mkdir -p build/windows
quiet build/windows/configure.log cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
quiet build/windows/build.log cmake --build build -j "$jobs" --target libvela.so
jdk_include=$(dirname "$(dirname "$(readlink -f "$(command -v javac)")")")/include
quiet build/windows/host.log c++ -std=c++20 -Wall -Wextra -Werror -O1 -I"$jdk_include" -I"$jdk_include/linux" \
  -Itests -Iinclude tests/windows/host.cpp -ldl -o build/windows/host
iconv -f UTF-8 -t CP1251 tests/windows/requests.tsv >build/windows/requests.txt
if ! build/windows/host build/libvela.so build/windows/requests.txt build/windows/answers.txt \
  >build/windows/library-output.txt 2>build/windows/write.log; then
  cat build/windows/write.log >&2
  say "the Linux build could not answer the request table"
  exit 1
fi
requests=$(grep -c . build/windows/answers.txt)

# ---- the two DLLs ----
declare -A build_dir=([i686]=build-win32 [x86_64]=build-win64)
declare -A pe_arch=([i686]=i386 [x86_64]=i386:x86-64)
for arch in i686 x86_64; do
  dir=${build_dir[$arch]}
  mkdir -p "$dir"
  quiet "$dir/configure.log" cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$project/cmake/mingw-w64-$arch.cmake" -DVELA_BUILD_TESTS=OFF -DVELA_BUILD_BENCH=OFF
  quiet "$dir/build.log" cmake --build "$dir" -j "$jobs"
  rm -rf "$dir/dist"
  quiet "$dir/install.log" cmake --install "$dir" --prefix "$dir/dist"
done

# ---- export and import tables ----
expected_exports=$(printf '%s\n' decodeBuffer decodeReleaseBuffer DecodeBufferASCII \
  vela_read vela_reading_free vela_version \
  Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded \
  Java_com_talvik_ostra_macrosynthesis_vela_Vela_read0 Java_com_talvik_ostra_macrosynthesis_vela_Vela_version0 | sort)
# Windows' own DLLs; anything else (libstdc++-6, libgcc_s_*, libwinpthread-1) must be linked in.
system_dlls='^(kernel32|msvcrt|user32|advapi32|ntdll|ws2_32)\.dll$'
for arch in i686 x86_64; do
  dll=${build_dir[$arch]}/vela.dll
  objdump=$arch-w64-mingw32-objdump
  table=$("$objdump" -p "$dll")
  exports=$(sed -n '/\[Ordinal\/Name Pointer\] Table/,/^$/p' <<<"$table" | sed -n 's/^\s*\[ *[0-9]*\] //p' | sort)
  machine=$("$objdump" -f "$dll" | sed -n 's/^architecture: \([^,]*\),.*/\1/p')
  if [ "$exports" = "$expected_exports" ] && [ "$machine" = "${pe_arch[$arch]}" ]; then
    pass
  else
    fail "$arch vela.dll ($machine) exports: $(echo $exports)"
  fi
  imports=$(sed -n 's/^\s*DLL Name: //p' <<<"$table")
  foreign=$(grep -viE "$system_dlls" <<<"$imports" || true)
  # Only the library's own DllMain calls it: the runtime's default entry does not.
  if [ -n "$imports" ] && [ -z "$foreign" ] && grep -qw DisableThreadLibraryCalls <<<"$table"; then
    pass
  else
    fail "$arch vela.dll imports $(echo $foreign) (DisableThreadLibraryCalls: $(grep -cw DisableThreadLibraryCalls <<<"$table"))"
  fi
done

# ---- the hosts under wine ----
# Runs the table host and the import-library host, staged in $2, with the wine command that follows.
run_hosts() {
  local arch=$1 dir=$2
  shift 2
  if (cd "$dir" && "$@" vela_windows_host.exe vela.dll requests.txt windows-answers.txt >library-output.txt 2>host.log) &&
    diff "$dir/answers.txt" "$dir/windows-answers.txt" >"$dir/answers.diff"; then
    pass
  else
    fail "$arch request table under wine: $(grep -v '^wine:' "$dir/host.log" | head -5; iconv -f CP1251 -t UTF-8 "$dir/answers.diff" | head -20)"
  fi
  if (cd "$dir" && "$@" vela_windows_linked.exe >linked.log 2>&1) && grep -q 'consumer ok' "$dir/linked.log"; then
    pass
  else
    fail "$arch host linked with libvela.dll.a: $(grep -v '^wine:' "$dir/linked.log" | head -5)"
  fi
}
stage() {
  local from=$1 to=$2
  rm -rf "$to" && mkdir -p "$to"
  cp "$from/vela.dll" "$from/vela_windows_host.exe" "$from/vela_windows_linked.exe" \
    build/windows/requests.txt build/windows/answers.txt "$to/"
}

export WINEDEBUG=-all
stage build-win64 build-win64/run
WINEPREFIX=$project/build-win64/wineprefix run_hosts x86_64 build-win64/run /usr/lib/wine/wine64
WINEPREFIX=$project/build-win64/wineprefix /usr/lib/wine/wineserver -w || true

if installed wine32:i386 && command -v wine >/dev/null; then
  stage build-win32 build-win32/run
  WINEPREFIX=$project/build-win32/wineprefix run_hosts i686 build-win32/run wine
  WINEPREFIX=$project/build-win32/wineprefix wineserver -w || true
else
  if [ ! -f "$wine32_root/.vela-wine32-ready" ]; then
    say "making a Debian 12 chroot with wine32 in $wine32_root (once)"
    rm -rf "$wine32_root"
    if [ -f /tmp/vela-fresh-base/.fresh-ready ]; then
      cp -a /tmp/vela-fresh-base "$wine32_root"
    else
      install_missing debootstrap
      mirror=$(awk '/^URIs:/ {print $2; exit}' /etc/apt/sources.list.d/debian.sources 2>/dev/null || true)
      quiet /tmp/vela-win-debootstrap.log debootstrap --variant=minbase bookworm "$wine32_root" \
        "${mirror:-http://deb.debian.org/debian}"
    fi
    # The i386 packages come from the release and its updates only, so that
    # both architectures of every shared library are of one version.
    mirror=$(awk '/^URIs:/ {print $2; exit}' /etc/apt/sources.list.d/debian.sources 2>/dev/null || true)
    rm -f "$wine32_root"/etc/apt/sources.list "$wine32_root"/etc/apt/sources.list.d/*
    printf 'Types: deb\nURIs: %s\nSuites: bookworm bookworm-updates\nComponents: main\nSigned-By: %s\n' \
      "${mirror:-http://deb.debian.org/debian}" /usr/share/keyrings/debian-archive-keyring.gpg \
      >"$wine32_root/etc/apt/sources.list.d/debian.sources"
    quiet /tmp/vela-win-chroot-apt.log chroot "$wine32_root" bash -c \
      'dpkg --add-architecture i386 && apt-get update -qq &&
       DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends wine32:i386 wine'
    touch "$wine32_root/.vela-wine32-ready"
  fi
  stage build-win32 "$wine32_root/vela-run"
  mounted=0
  if ! mountpoint -q "$wine32_root/proc"; then
    mount --bind /proc "$wine32_root/proc"
    mounted=1
  fi
  trap 'if [ $mounted = 1 ]; then umount "$wine32_root/proc" || true; fi' EXIT
  run_hosts i686 "$wine32_root/vela-run" \
    chroot "$wine32_root" env -C /vela-run WINEPREFIX=/vela-prefix wine
  chroot "$wine32_root" env WINEPREFIX=/vela-prefix wineserver -w || true
  # Keep what the run saw beside the build, where the 64-bit run leaves its own.
  rm -rf build-win32/run && cp -r "$wine32_root/vela-run" build-win32/run
fi

say "i686 and x86_64 vela.dll: exports, imports, $requests requests as on Linux, import-library host; $((SECONDS - started))s"
echo "windows: $passed passed, $failed failed"
[ "$failed" -eq 0 ]
