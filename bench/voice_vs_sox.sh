#!/usr/bin/env bash
# Whole-process timing: `vela say` against the equivalent sox command line,
# both joining the four recordings of 12.50руб (8 kHz, 16-bit, in the page
# cache) with 150 ms pauses into one 8 kHz mu-law WAV file.
#
#   bench/voice_vs_sox.sh [RUNS]        (default 200; needs build/vela and sox)
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${1:-200}
vela=${VELA:-build/vela}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Four half-second recordings and a 150 ms silence, 8 kHz mono 16-bit.
words=(двенадцать рублей пятьдесят копеек)
for w in "${words[@]}"; do sox -n -r 8000 -b 16 -c 1 "$work/$w.wav" synth 0.5 sine 440; done
sox -n -r 8000 -b 16 -c 1 "$work/pause.wav" trim 0 0.15
sox_args=()
for w in "${words[@]}"; do sox_args+=("$work/$w.wav" "$work/pause.wav"); done
unset 'sox_args[${#sox_args[@]}-1]'

time_runs() {  # name, command...: the mean wall time of one run in ms
  local name=$1
  shift
  "$@" >/dev/null 2>&1  # warm up
  local start end
  start=$(date +%s%N)
  for ((i = 0; i < runs; i++)); do "$@" >/dev/null 2>&1; done
  end=$(date +%s%N)
  printf '%-6s %8.2f ms per run (%d runs)\n' "$name" "$(echo "($end - $start) / $runs / 1000000" | bc -l)" "$runs"
}

"$vela" say -l ru --voice "$work" --rate 8000 --encoding ulaw -o "$work/vela.wav" 12.50руб
sox "${sox_args[@]}" -e u-law "$work/sox.wav"
echo "vela: $(soxi -r "$work/vela.wav") Hz, $(soxi -e "$work/vela.wav"), $(soxi -s "$work/vela.wav") samples"
echo "sox:  $(soxi -r "$work/sox.wav") Hz, $(soxi -e "$work/sox.wav"), $(soxi -s "$work/sox.wav") samples"
time_runs vela "$vela" say -l ru --voice "$work" --rate 8000 --encoding ulaw -o "$work/vela.wav" 12.50руб
time_runs sox sox "${sox_args[@]}" -e u-law "$work/sox.wav"
