#!/usr/bin/env python3
"""Turns vela_bench's JSON output (with --benchmark_repetitions) into the
Markdown tables of bench/README.md: CPU time per request, the median of the
repetitions. Given several runs, each cell is the median of the runs' medians
and the key figures also show the lowest and highest run: on a shared virtual
machine one run can be a third slower than the next."""
import json
import statistics
import sys


def medians(path):
    with open(path) as f:
        data = json.load(f)
    result = {}
    for b in data["benchmarks"]:
        if b.get("aggregate_name") == "median":
            result[b["run_name"]] = b
    return data["context"], result


def ns(b):
    scale = {"ns": 1, "us": 1e3, "ms": 1e6}[b["time_unit"]]
    return b["cpu_time"] * scale


def main():
    runs = [medians(path) for path in sys.argv[1:]]
    names = list(runs[0][1])

    def cell(name):
        return statistics.median(ns(m[name]) for _, m in runs if name in m)

    def spread(name):
        values = sorted(ns(m[name]) for _, m in runs if name in m)
        return f" (runs: {values[0]:.0f}-{values[-1]:.0f})" if len(values) > 1 else ""

    grammars, kinds = [], []
    for name in names:
        if name.startswith("Token/") and name.count("/") == 2:
            _, g, k = name.split("/")
            if g not in grammars:
                grammars.append(g)
            if k not in kinds:
                kinds.append(k)
    print("| token kind | " + " | ".join(grammars) + " |")
    print("|---|" + "---|" * len(grammars))
    for k in kinds:
        cells = [f"{cell(f'Token/{g}/{k}'):.0f}" for g in grammars]
        print(f"| {k} | " + " | ".join(cells) + " |")
    print(f"\nunknown tag (\"xx\", \"15\"): {cell('Token/unknown-tag'):.0f} ns\n")
    for name in names:
        if not name.startswith("Token/"):
            b = runs[0][1][name]
            items = statistics.median(m[name].get("items_per_second", 0) for _, m in runs if name in m)
            extra = f", {items / 1e3:.0f}k requests/s" if items else ""
            counters = "".join(f", {k} {v:.0f}" for k, v in b.items() if k == "text_bytes")
            print(f"- {name}: {cell(name):.0f} ns CPU{spread(name)}{extra}{counters}")
    for ours, icu in (("BM_Vela_RussianCardinal", "BM_Icu_RussianCardinal"),
                      ("BM_Vela_EnglishCount", "BM_Icu_EnglishCardinal")):
        ratios = sorted(ns(m[icu]) / ns(m[ours]) for _, m in runs if ours in m and icu in m)
        if ratios:
            print(f"- ICU / vela, {ours}: {statistics.median(ratios):.1f}x "
                  f"(each run's own ratio: {', '.join(f'{r:.1f}' for r in ratios)})")
    print(f"\nload average at the start of each run: {[c.get('load_avg') for c, _ in runs]}")


if __name__ == "__main__":
    main()
