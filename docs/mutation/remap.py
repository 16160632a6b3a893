#!/usr/bin/env python3
"""Carries the mutants of a run made at one commit over to the working tree.

A mutant is named by file, line, column and operator. When the library has
changed since the run, the same fault sits on another line: this maps each
mutant's line through a line diff of the file between COMMIT and the working
tree, keeps it only where the line reads exactly as it did, and writes a run
file that `mutants.py run --same-as` takes. Mutants whose line changed are
listed on standard error and left out.

usage: remap.py COMMIT IN.json OUT.json   (from the project root)
"""
import difflib
import json
import subprocess
import sys

commit, src, dst = sys.argv[1:4]
run = json.load(open(src))
old_files, new_files, kept, dropped = {}, {}, [], []
for m in run["mutants"]:
    f = m["file"]
    if f not in old_files:
        old_files[f] = subprocess.run(["git", "show", f"{commit}:{f}"], capture_output=True, text=True,
                                      check=True).stdout.split("\n")
        try:
            new_files[f] = open(f, encoding="utf-8").read().split("\n")
        except OSError:
            new_files[f] = []
    old, new = old_files[f], new_files[f]
    mapping = {}
    for a, b, size in difflib.SequenceMatcher(None, old, new, autojunk=False).get_matching_blocks():
        for k in range(size):
            mapping[a + k + 1] = b + k + 1
    line = mapping.get(m["line"])
    if line is None:
        dropped.append(m["id"])
        continue
    moved = dict(m, line=line)
    moved["id"] = f'{f}:{line}:{m["col"]}:{m["op"]}'
    moved["was"] = m["id"]
    kept.append(moved)
run["mutants"] = kept
json.dump(run, open(dst, "w"), indent=1)
print(f"remap: {len(kept)} mutants carried over, {len(dropped)} on lines that changed", file=sys.stderr)
for i in dropped:
    print(f"remap: changed: {i}", file=sys.stderr)
