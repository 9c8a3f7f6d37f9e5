"""Figures and gaps for tools/coverage.sh. Fails when a figure is lower than wanted.
   coverage.py branches EXPORT.json          of llvm-cov
   coverage.py lines FOLDER PORTABLE         of gcov's files in FOLDER; the sources named in PORTABLE are left out
The reasons for gaps stand in tools/coverage.txt, one a source.
"""
import collections
import glob
import gzip
import json
import os
import re
import sys

FOLDERS = ("win", "app", "wizard", "shell", "ftw", "ndw")


def own(path):
    """The path of a source of the program below the root, None for any other."""
    found = re.search(rf"(?:^|/)((?:{'|'.join(FOLDERS)})/\w+\.(?:cpp|h))$", path)
    return found.group(1) if found and "tests/" + found.group(1) not in path else None


def reasons():
    with open(os.path.join(os.path.dirname(__file__), "coverage.txt"), encoding="utf-8") as file:
        return dict(line.rstrip("\n").split(": ", 1) for line in file if not line.startswith("#"))


def show(kind, wanted, reached, gaps):
    total = sum(len(all) for all, _ in reached.values())
    share = 100 * sum(len(hit) for _, hit in reached.values()) / max(1, total)
    print(f"{kind}: {share:.1f} % of {total}, wanted {wanted} %")
    known = reasons()
    for file in sorted(file for file in gaps if gaps[file]):
        print(f"    {file}: {', '.join(gaps[file])} ({known.get(file, 'no reason given')})")
    sys.exit(share < wanted)


def ranges(lines):
    text = []
    for line in sorted(lines):
        if text and text[-1][1] == line - 1:
            text[-1][1] = line
        else:
            text.append([line, line])
    return [f"{a}" if a == b else f"{a}-{b}" for a, b in text]


def branches(path):
    reached, gaps = {}, {}
    for entry in json.load(open(path))["data"][0]["files"]:
        file = own(entry["filename"])
        seen = collections.defaultdict(lambda: [0, 0])  # one place may be instantiated often
        for line, column, _, _, yes, no, *_ in entry["branches"]:
            seen[line, column][0] += yes
            seen[line, column][1] += no
        ways = {(place, way): hits for place, both in seen.items() for way, hits in zip(("true", "false"), both)}
        reached[file] = (set(ways), {way for way, hits in ways.items() if hits})
        gaps[file] = [f"{line}:{column} never {way}" for ((line, column), way), hits in sorted(ways.items()) if not hits]
    show("branches of the portable parts", 95, reached, gaps)


def lines(folder, portable):
    hits = collections.defaultdict(lambda: collections.defaultdict(int))
    for path in glob.glob(os.path.join(folder, "*.gcov.json.gz")):
        for entry in json.load(gzip.open(path))["files"]:
            file = own(os.path.normpath(entry["file"]))
            if file and file not in portable.split():
                for line in entry["lines"]:
                    hits[file][line["line_number"]] += line["count"]
    reached = {file: (set(all), {line for line, count in all.items() if count}) for file, all in hits.items()}
    show("lines of the rest", 90, reached, {file: ranges(all - hit) for file, (all, hit) in reached.items()})


branches(sys.argv[2]) if sys.argv[1] == "branches" else lines(*sys.argv[2:4])
