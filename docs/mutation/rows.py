#!/usr/bin/env python3
"""Which table rows of the library's tests catch which mutants, and what a cut
of rows would lose.

The outputs come from keep-output.sh (one .out and one .diff per mutant). A
failure is tied to a table row when the message gtest printed with it ends in
(or is) the row's first string: every table test prints its text that way.
Failures tied to no row (direct calls, the generated corpora) count as fixed
killers: a cut of rows never removes them.

  rows.py cut --choose DIR [--also RUN.json --also-tests REGEX] --judge DIR2 --rows N
      chooses N rows to cut on the first sample (fewest kills
      first; no mutant of it is left without a killer), then counts the mutants
      of the second sample that only those rows killed
  rows.py halves --choose DIR [--also ...] --rows N
  --within FOLDER: cut only rows of the test files under tests/FOLDER
      the same, twenty times, on random halves of one sample

  rows.py keep --choose DIR --out FILE.json.gz
      the failures of every mutant in one file, which --choose and --judge also take

--also adds, per mutant (by file and line), the tests matching REGEX that a
mutants.py run says failed: for outputs of a run that left those tests out.
"""
import argparse
import collections
import glob
import gzip
import json
import os
import random
import re

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
LIBRARY_TESTS = ("languages/", "analysis/", "api/", "pipeline/", "grammar/")
ROW = re.compile(r'^\s*\{\s*"((?:[^"\\]|\\.)*)"(_cp)?')


def failures(path):
    """(test, message) for every failure in one gtest output."""
    lines = open(path, "rb").read().decode("latin-1").split("\n")
    test, found = None, set()
    for i, line in enumerate(lines):
        run = re.match(r"\[ RUN      \] (\S+)", line)
        if run:
            test = run.group(1)
        if test and re.match(r"\S+:\d+: Failure", line):
            message = ""
            for follow in lines[i + 1:]:
                if re.match(r"\S+:\d+: Failure|\[ ", follow):
                    break
                if follow and not follow.startswith((" ", "Expected", "Value of", "Actual", "Which is", "With diff")):
                    message = message or follow
            found.add((test, message))
    return found


def mutant_key(diff):
    path = re.search(r"^\+\+\+ b/(\S+)", diff, re.M).group(1)
    hunk = re.search(r"^@@ -(\d+)", diff, re.M)
    line = int(hunk.group(1))
    changed = [t for t in diff.split("\n") if t.startswith("+") and not t.startswith("+++")]
    for text in diff[hunk.end():].split("\n")[1:]:
        if text.startswith("-"):
            return f"{path}:{line}", changed[0].strip() if changed else ""
        line += not text.startswith("+")
    return path, ""


def literal(text, cp1251):
    raw = text.encode("utf-8").decode("unicode_escape").encode("latin-1") if "\\" in text else text.encode()
    return (raw.decode("utf-8").encode("cp1251") if cp1251 else raw).decode("latin-1")


def table_rows():
    """(file, line, first string, test suites of the file) for every row of the library's test tables."""
    rows = []
    for path in sorted(glob.glob(f"{ROOT}/tests/**/*_test.cpp", recursive=True)):
        rel = os.path.relpath(path, f"{ROOT}/tests")
        if not rel.startswith(LIBRARY_TESTS):
            continue
        source = open(path, encoding="utf-8").read()
        suites = set(re.findall(r"^TEST(?:_F)?\((\w+),", source, re.M))
        for number, line in enumerate(source.split("\n"), 1):
            row = ROW.match(line)
            if row:
                rows.append((rel, number, literal(row.group(1), bool(row.group(2))), suites))
    return rows


def tied(row, test, message):
    text = row[2]
    return test.split(".")[0] in row[3] and (
        message == text or message.endswith((" " + text, "/" + text)) or message.startswith(text + " ")
        or f" {text} -> [" in message)


def outputs(source):
    """Mutant -> (file:line, change, failures), from keep-output.sh's folder or a file `keep` wrote."""
    if source.endswith(".json.gz"):
        return {k: (v[0], v[1], [tuple(f) for f in v[2]]) for k, v in json.load(gzip.open(source, "rt")).items()}
    found = {}
    for out in glob.glob(f"{source}/*.out"):
        diff = open(out[:-4] + ".diff").read() if os.path.exists(out[:-4] + ".diff") else ""
        if diff.strip():
            where, change = mutant_key(diff)
            found[f"{where} {change[1:80]}"] = (where, change, sorted(failures(out)))
    return found


def killers(source, rows, also=None, also_tests=None):
    """Mutant -> its killers: row indexes, and names of failures tied to no row."""
    extra = collections.defaultdict(set)
    if also:
        for m in json.load(open(also))["mutants"]:
            extra[f"{m['file']}:{m['line']}"].update(t for t in m.get("tests", []) if re.search(also_tests, t))
    result = {}
    for name, (where, change, failed) in outputs(source).items():
        found = {f"test:{t}" for t in extra[where]}
        for test, message in failed:
            hit = [i for i, row in enumerate(rows) if tied(row, test, message)]
            found.update(hit or [f"test:{test}"])
        if found:
            result[name] = found
    return result


def choose(rows, kills, count, within=""):
    """Rows to cut (of the files under `within`), fewest kills first, while every mutant keeps a killer."""
    left = {m: len(k) for m, k in kills.items()}
    by_row = collections.defaultdict(list)
    for m, k in kills.items():
        for r in k:
            if isinstance(r, int):
                by_row[r].append(m)
    cut = set()
    for r in sorted((r for r in range(len(rows)) if rows[r][0].startswith(within)), key=lambda r: len(by_row[r])):
        if len(cut) >= count:
            break
        if all(left[m] > 1 for m in by_row[r]):
            cut.add(r)
            for m in by_row[r]:
                left[m] -= 1
    return cut


def lost(kills, cut):
    return sorted(m for m, k in kills.items() if all(isinstance(r, int) and r in cut for r in k))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("what", choices=["cut", "halves", "keep"])
    parser.add_argument("--choose", required=True)
    parser.add_argument("--also")
    parser.add_argument("--also-tests", default=".")
    parser.add_argument("--judge")
    parser.add_argument("--rows", type=int, default=0)
    parser.add_argument("--out", help="keep: the file to write")
    parser.add_argument("--within", default="", help="cut only rows of test files under this folder")
    a = parser.parse_args()
    if a.what == "keep":
        with gzip.open(a.out, "wt") as out:
            json.dump(outputs(a.choose), out, ensure_ascii=True, indent=0)
        return
    rows = table_rows()
    first = killers(a.choose, rows, a.also, a.also_tests)
    print(f"{len(rows)} table rows; {len(first)} mutants killed in {a.choose}")
    if a.what == "cut":
        cut = choose(rows, first, a.rows, a.within)
        print(f"cut: {len(cut)} rows, chosen so that every mutant of the first sample keeps a killer")
        judged = {m: k for m, k in killers(a.judge, rows).items() if m not in first}
        gone = lost(judged, cut)
        print(f"second sample: {len(judged)} killed (not in the first); killed only by the cut rows: {len(gone)}")
        for m in gone:
            print("  ", m)
    else:
        names = sorted(first)
        gone = []
        for seed in range(20):
            half = set(random.Random(seed).sample(names, len(names) // 2))
            cut = choose(rows, {m: first[m] for m in half}, a.rows, a.within)
            gone.append(len(lost({m: first[m] for m in names if m not in half}, cut)))
        print(f"cut on one half, lost in the other ({len(names) - len(names) // 2}): mean {sum(gone) / 20:.1f},"
              f" least {min(gone)}, most {max(gone)}")


if __name__ == "__main__":
    main()
