#!/usr/bin/env bash
# Sets up the machine, builds vela, and lets the `vela` tool speak examples.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j "$(nproc)"
set -x
./build/vela -l ru 12.50руб 21руб 1.05.2015 7:05
./build/vela -l ru -t 12.50rub 1.05.2015
./build/vela -l uk 21.03.1999 7:05
./build/vela -l en 1.05usd 1.05.2015 7:05
./build/vela -l ro 25leu 1.12.2015
./build/vela -l ar 21usd 14:45
./build/vela -l kk 2008
./build/vela -l uz 21
