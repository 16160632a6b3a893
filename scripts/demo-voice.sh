#!/usr/bin/env bash
# Makes a placeholder voice for one language: a WAV file for every prompt the
# language can answer with, spoken by espeak-ng, so that `vela say` can be
# heard before real recordings exist. The recordings are what telephony
# platforms play: mono 16-bit WAV at 16 kHz (RATE=8000 for 8 kHz), with the
# silence at both ends cut (sox).
#
#   scripts/demo-voice.sh TAG [-t] [DIR]     (DIR defaults to voice/TAG, voice/TAG-t with -t)
#
# Then: build/vela say -l TAG --voice DIR -o x.wav TEXT
# Installed (/usr/share/vela/demo-voice.sh), it uses the `vela` on PATH and
# writes DIR under the current directory.
set -euo pipefail
if [ -x "$(dirname "$0")/../build/vela" ]; then
  cd "$(dirname "$0")/.."
fi

usage() { echo "usage: scripts/demo-voice.sh TAG [-t] [DIR]" >&2; exit 2; }
[ $# -ge 1 ] || usage
tag=$1
shift
mode=()
if [ "${1:-}" = "-t" ]; then
  mode=(-t)
  shift
fi
dir=${1:-voice/$tag${mode:+-t}}

vela=${VELA:-build/vela}
[ -x "$vela" ] || [ -n "${VELA:-}" ] || vela=$(command -v vela || echo build/vela)
if [ ! -x "$vela" ]; then
  echo "demo-voice: no $vela; build it first: cmake --build build --target vela" >&2
  exit 2
fi
for program in espeak-ng sox; do
  if ! command -v $program >/dev/null; then
    echo "demo-voice: $program is missing; run scripts/setup.sh" >&2
    exit 2
  fi
done
rate=${RATE:-16000}
case "$rate" in 8000 | 16000) ;; *) echo "demo-voice: RATE is 8000 or 16000" >&2; exit 2 ;; esac

# The espeak-ng voice that reads the language's prompt names best. Names in
# Latin transliteration are read by a voice that pronounces Latin letters
# phonetically when espeak-ng has none for the language in that script: Polish
# for Ukrainian and transliterated Russian, Turkish for Kazakh, Persian in
# Latin letters for Tajik, Esperanto for Georgian, Armenian and Arabic.
voice_for() {
  case "$1" in
    ru | rus | RUSSIAN) if [ ${#mode[@]} -gt 0 ]; then echo pl; else echo ru; fi ;;
    uk | ukr | UKRAINIAN | UKRANIAN | UKRAINIEN | UKRAINE) echo pl ;;
    ro | rom | rum | mo | mol | ROMANIAN | MOLDOVA) echo ro ;;
    uz | uzb | UZBEK | OUSZBEK | UZBEKISTAN) echo uz ;;
    kk | kaz | KAZAH | KAZAKH | KAZAKHSTAN) echo tr ;;
    tg | tgk | TADJIK | TAJIK | TAJIKISTAN) echo fa-latn ;;
    ka | geo | GEORGIA | GEORGIAN | hy | ARMJAN | ar | ARAB) echo eo ;;
    *) echo en-us ;;
  esac
}
voice=$(voice_for "$tag")

mkdir -p "$dir"
raw=$(mktemp --suffix=.wav)
trap 'rm -f "$raw"' EXIT
count=0
while IFS=$'\t' read -r name file; do
  # What espeak-ng says: the name, with marks that are no letters read as pauses.
  spoken=$(printf '%s' "$name" | tr '^_' '  ')
  espeak-ng -v "$voice" -s 150 -w "$raw" -- "$spoken"
  # Mono at the telephone rate; silence below -45 dBFS cut at the start, and
  # (reversed) at the end.
  sox "$raw" -r "$rate" -c 1 -b 16 "$dir/$file" silence 1 0.005 -45d reverse silence 1 0.005 -45d reverse
  count=$((count + 1))
done < <("$vela" prompts -l "$tag" "${mode[@]}" --files)
echo "demo-voice: $count recordings in $dir ($rate Hz, espeak-ng voice $voice)"
"$vela" voice check -l "$tag" "${mode[@]}" "$dir" | tail -n 3 || true
