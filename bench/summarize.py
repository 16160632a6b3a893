#!/usr/bin/env python3
"""Turns vela_bench's JSON output (with --benchmark_repetitions) into the
Markdown tables of bench/README.md: medians of CPU time per request."""
import json
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
    context, m = medians(sys.argv[1])
    grammars, kinds = [], []
    for name in m:
        if name.startswith("Token/") and name.count("/") == 2:
            _, g, k = name.split("/")
            if g not in grammars:
                grammars.append(g)
            if k not in kinds:
                kinds.append(k)
    print("| token kind | " + " | ".join(grammars) + " |")
    print("|---|" + "---|" * len(grammars))
    for k in kinds:
        cells = [f"{ns(m[f'Token/{g}/{k}']):.0f}" for g in grammars]
        print(f"| {k} | " + " | ".join(cells) + " |")
    print(f"\nunknown tag (\"xx\", \"15\"): {ns(m['Token/unknown-tag']):.0f} ns\n")
    for name, b in m.items():
        if not name.startswith("Token/"):
            items = b.get("items_per_second")
            extra = f", {items / 1e3:.0f}k requests/s" if items else ""
            print(f"- {name}: {ns(b):.0f} ns CPU, {b['real_time']:.0f} {b['time_unit']} real{extra}")
    print(f"\nload average at start: {context.get('load_avg')}")


if __name__ == "__main__":
    main()
