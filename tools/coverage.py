"""Figures and gaps for tools/coverage.sh.
   coverage.py branches EXPORT.json          of llvm-cov
   coverage.py lines FOLDER ROOT PORTABLE    of gcov's files in FOLDER; the sources named in PORTABLE are left out
"""
import collections
import glob
import gzip
import json
import os
import sys


def show(kind, reached, gaps):
    total = sum(len(all) for all, _ in reached.values())
    count = sum(len(hit) for _, hit in reached.values())
    print(f"{kind}: {count} of {total}, {100 * count / max(1, total):.1f} %")
    for file in sorted(gaps):
        if gaps[file]:
            print(f"    {file}: {', '.join(gaps[file])}")


def ranges(lines):
    text = []
    for line in sorted(lines):
        if text and text[-1][1] == line - 1:
            text[-1][1] = line
        else:
            text.append([line, line])
    return [f"{a}" if a == b else f"{a}-{b}" for a, b in text]


def branches(path):
    reached, gaps = {}, collections.defaultdict(list)
    for entry in json.load(open(path))["data"][0]["files"]:
        file = os.path.relpath(entry["filename"])
        seen = collections.defaultdict(lambda: [0, 0])  # one place may be instantiated often
        for line, column, _, _, yes, no, *_ in entry["branches"]:
            seen[line, column][0] += yes
            seen[line, column][1] += no
        ways = {(place, way): hits for place, both in seen.items() for way, hits in zip(("true", "false"), both)}
        reached[file] = (set(ways), {way for way, hits in ways.items() if hits})
        gaps[file] = [f"{line}:{column} never {way}" for ((line, column), way), hits in sorted(ways.items()) if not hits]
    show("branches of the portable parts", reached, gaps)


def lines(folder, root, portable):
    hits = collections.defaultdict(lambda: collections.defaultdict(int))
    own = tuple(f"{name}/" for name in ("win", "app", "wizard", "shell", "ftw", "ndw"))
    for path in glob.glob(os.path.join(folder, "*.gcov.json.gz")):
        for entry in json.load(gzip.open(path))["files"]:
            file = os.path.normpath(entry["file"])
            file = os.path.relpath(file, root) if os.path.isabs(file) else file
            if not file.startswith(own) or file in portable.split():
                continue
            for line in entry["lines"]:
                hits[file][line["line_number"]] += line["count"]
    reached = {file: (set(all), {line for line, count in all.items() if count}) for file, all in hits.items()}
    gaps = {file: ranges(all - hit) for file, (all, hit) in reached.items()}
    show("lines of the rest", reached, gaps)


branches(sys.argv[2]) if sys.argv[1] == "branches" else lines(*sys.argv[2:5])
