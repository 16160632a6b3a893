#!/usr/bin/env bash
# Requests per second and latency of `vela serve` on loopback, measured with wrk
# side by side with nginx serving a small static JSON file, same wrk settings,
# in one run:
#   1. nginx, GET of a static file holding the JSON answer of /v1/read
#   2. vela, GET /v1/read?lang=ru&text=12.50руб
#   3. vela, GET /v1/audio of the same text, 8 kHz mu-law WAV, warm cache
# Prints one line per target and the ratio vela /v1/read : nginx.
#
#   bench/http.sh [SECONDS] [CONNECTIONS] [ROUNDS]   (default 10 s, 64 connections, 3 rounds)
#
# nginx and vela take turns, ROUNDS times, so a slow spell of a shared machine
# falls on both; each line is the median of its rounds.
# Needs build/vela (cmake --build build --target vela); installs wrk and nginx
# through scripts/setup.sh --http-bench when they are missing.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-10}
connections=${2:-64}
rounds=${3:-3}
threads=${WRK_THREADS:-2}
vela=${VELA:-build/vela}

[ -x "$vela" ] || { echo "http.sh: no $vela; build it first" >&2; exit 2; }
command -v wrk >/dev/null && command -v nginx >/dev/null || bash scripts/setup.sh --http-bench

work=$(mktemp -d /tmp/vela-http-bench.XXXXXX)
chmod 755 "$work"
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill -TERM "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# A voice of the four prompts the audio request needs.
mkdir -p "$work/voice"
for name in двенадцать рублей пятьдесят копеек; do
  espeak-ng -v ru -w "$work/voice/$name.wav" "$name"
done

"$vela" serve --listen 127.0.0.1:0 --voice "ru=$work/voice" 2>"$work/vela.log" &
pids+=($!)
for _ in $(seq 50); do grep -q 'listening on' "$work/vela.log" && break; sleep 0.1; done
vela_port=$(sed -n 's/.*listening on .*:\([0-9]*\)$/\1/p' "$work/vela.log")
read_url="http://127.0.0.1:$vela_port/v1/read?lang=ru&text=12.50%D1%80%D1%83%D0%B1"
audio_url="http://127.0.0.1:$vela_port/v1/audio?lang=ru&text=12.50%D1%80%D1%83%D0%B1&rate=8000&encoding=ulaw"

# nginx as a user would run it for static files: one worker per core, no access log.
mkdir -p "$work/www" "$work/nginx"
curl -sf "$read_url" >"$work/www/read.json"
chmod 644 "$work/www/read.json"
nginx_port=$((vela_port + 1))
while curl -s -o /dev/null "http://127.0.0.1:$nginx_port/" 2>/dev/null; do nginx_port=$((nginx_port + 1)); done
cat >"$work/nginx/nginx.conf" <<EOF
worker_processes auto;
pid $work/nginx/nginx.pid;
error_log $work/nginx/error.log;
daemon off;
events { worker_connections 4096; }
http {
  access_log off;
  sendfile on;
  tcp_nopush on;
  keepalive_requests 1000000;
  types { application/json json; }
  server {
    listen 127.0.0.1:$nginx_port;
    root $work/www;
  }
}
EOF
nginx -c "$work/nginx/nginx.conf" -p "$work/nginx" &
pids+=($!)
for _ in $(seq 50); do curl -sf -o /dev/null "http://127.0.0.1:$nginx_port/read.json" && break; sleep 0.1; done
curl -sf -o /dev/null "$audio_url"  # warm the cache

# One wrk run: "RPS P99 ERRORS" from wrk --latency's "Requests/sec" and 99% lines.
run_wrk() {
  local out
  out=$(wrk -t"$threads" -c"$connections" -d"${seconds}s" --latency "$1")
  local errors
  errors=$(grep -cE 'Socket errors|Non-2xx' <<<"$out" || true)
  echo "$(awk '/Requests\/sec/ {print $2}' <<<"$out") $(awk '$1 == "99%" {print $2}' <<<"$out") $errors"
}

median() { sort -g | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

targets=("nginx static read.json|http://127.0.0.1:$nginx_port/read.json"
         "vela /v1/read|$read_url"
         "vela /v1/audio (warm cache)|$audio_url")
declare -A rps p99 errors
echo "wrk -t$threads -c$connections -d${seconds}s, loopback, $(nproc) cores, $rounds rounds" >&2
for round in $(seq "$rounds"); do
  for target in "${targets[@]}"; do
    name=${target%%|*}
    read -r r p e < <(run_wrk "${target#*|}")
    rps[$name]+="$r "
    p99[$name]+="$p "
    errors[$name]=$(( ${errors[$name]:-0} + e ))
    echo "  round $round: $name $r req/s, p99 $p" >&2
  done
done
for target in "${targets[@]}"; do
  name=${target%%|*}
  printf '%-28s %12s req/s   p99 %8s   %s\n' "$name" "$(tr ' ' '\n' <<<"${rps[$name]}" | grep . | median)" \
    "$(tr ' ' '\n' <<<"${p99[$name]}" | grep . | sed 's/ms$//; s/us$/e-3/; s/s$/e3/' | median)ms" \
    "$([ "${errors[$name]}" -eq 0 ] && echo "no errors" || echo "ERRORS in ${errors[$name]} runs")"
done
nginx_rps=$(tr ' ' '\n' <<<"${rps[nginx static read.json]}" | grep . | median)
read_rps=$(tr ' ' '\n' <<<"${rps[vela /v1/read]}" | grep . | median)
awk -v v="$read_rps" -v n="$nginx_rps" 'BEGIN { printf "ratio vela /v1/read : nginx = %.2f\n", v / n }'
