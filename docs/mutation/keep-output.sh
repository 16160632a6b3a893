#!/usr/bin/env bash
# A test command for mutants.py that also keeps what the tests printed: the
# output of build/tests/vela_tests and the mutant's diff, under the diff's hash
# in DIR. rows.py reads them to see which table rows each mutant fails.
#
#   mutants.py run ... --test 'docs/mutation/keep-output.sh /tmp/rows'
set -u
dir=$1
mkdir -p "$dir"
hash=$(git diff --no-color -- . ':!tests' | sha1sum | cut -c1-12)
build/tests/vela_tests >"$dir/$hash.out" 2>&1
status=$?
git diff --no-color -- . ':!tests' >"$dir/$hash.diff"
cat "$dir/$hash.out"
exit $status
