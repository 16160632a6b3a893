#!/usr/bin/env bash
# Prints the non-blank, non-comment line counts of the tests (everything under
# tests/, code and data) and of the library and tool code, and their ratio.
#
# Counted by cloc (scripts/setup.sh installs it), which knows each language's
# comments: // and /* ... */ in C, C++ and Java; # and docstrings in Python;
# # in shell and CMake. The request tables (*.tsv) are counted as shell: a line
# starting with # is a comment, every other non-blank line counts. The linker
# version script (*.map) counts whole, like C. Every file is counted, identical
# ones too; a file cloc cannot read is named on standard error.
set -euo pipefail
cd "$(dirname "$0")/.."

# The library and tool code: every module folder, listed here by hand.
code_dirs=(api pipeline analysis grammar languages tools include java/src python/vela audio service)
test_dirs=(tests)

count() {
  local ignored
  ignored=$(mktemp)
  cloc --quiet --csv --skip-uniqueness --force-lang="Bourne Shell",tsv --force-lang=C,map \
    --ignored="$ignored" "$@" | awk -F, '$2 == "SUM" { print $5 }'
  if [ -s "$ignored" ]; then sed 's/^/count-lines: not counted: /' "$ignored" >&2; fi
  rm -f "$ignored"
}

present=()
for d in "${code_dirs[@]}"; do [ -d "$d" ] && present+=("$d"); done
code=$(count "${present[@]}")
tests=$(count "${test_dirs[@]}")
echo "code  (${present[*]}): $code"
echo "tests (${test_dirs[*]}): $tests"
awk -v t="$tests" -v c="$code" 'BEGIN { printf "tests/code: %.3f\n", t / c }'
