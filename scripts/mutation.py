#!/usr/bin/env python3
"""Changes the product in one place at a time and looks whether the tests notice.

Each mutation is one small change of one line: a condition, a comparison, a constant, a deleted statement, two calls in
the other order, a field. The script copies the tree, applies the change, builds the tests of the room that it is in and
runs them; when they all pass, it builds and runs all the other tests as well. A change that no test notices is a
survivor: a gap in the tests, or a change that makes no difference.

The same seed gives the same mutations of the same sources. Results are kept in build/mutation/results.tsv and a run that
was interrupted goes on where it ended.
"""

import argparse
import hashlib
import pathlib
import queue
import random
import re
import shutil
import subprocess
import sys
import threading
import time

ROOMS = ["ui", "sdk", "panel", "plugin", "sections", "material", "preset"]
TEST_TIMEOUT = 120  # Seconds for one test program; a mutation that loops for ever is noticed by it.
CODE = re.compile(r"^\s*(//|\*|/\*|#|\}|\{|$)")
CALL = re.compile(r"^\s+[A-Za-z_][\w.:>\-\[\]()]*\(.*\);$")
ASSIGNMENT = re.compile(r"^\s+[\w.>\-\[\]()*]+ [|&+\-]?= .*;$")

# Kind, what is looked for, what takes its place. Each place that fits in a line is a mutation of its own.
REPLACEMENTS = [
    ("condition", re.compile(r"\bif \((?!constexpr)(.+)\) \{$"), lambda m: f"if (!({m[1]})) {{"),
    ("condition", re.compile(r" && "), lambda m: " || "),
    ("condition", re.compile(r" \|\| "), lambda m: " && "),
    ("condition", re.compile(r"(?<=[( ])!(?=[A-Za-z_])"), lambda m: ""),
    ("comparison", re.compile(r" == "), lambda m: " != "),
    ("comparison", re.compile(r" != "), lambda m: " == "),
    ("comparison", re.compile(r" <= "), lambda m: " < "),
    ("comparison", re.compile(r" >= "), lambda m: " > "),
    ("comparison", re.compile(r" < (?=[A-Za-z_0-9])"), lambda m: " <= "),
    ("comparison", re.compile(r" > (?=[A-Za-z_0-9])"), lambda m: " >= "),
    ("constant", re.compile(r"\btrue\b"), lambda m: "false"),
    ("constant", re.compile(r"\bfalse\b"), lambda m: "true"),
    ("constant", re.compile(r"(?<![\w.\"'])(\d+)(?![\w.\"'])"), lambda m: str(int(m[1]) + 1)),
    ("constant", re.compile(r"\b0x([0-9a-fA-F]+)\b"), lambda m: hex(int(m[1], 16) ^ 1)),
    ("constant", re.compile(r"(?<![\w\"])(\d+\.\d+)F?(?![\w\"])"), lambda m: f"({m[0]} + 1)"),
    ("arithmetic", re.compile(r"(?<=[\w)]) \+ (?=[\w(])"), lambda m: " - "),
    ("arithmetic", re.compile(r"(?<=[\w)]) - (?=[\w(])"), lambda m: " + "),
    ("field", re.compile(r"\.mesh\b(?=[,)])"), lambda m: ".material"),
    ("field", re.compile(r"\.material\b(?=[,)])"), lambda m: ".mesh"),
]


def without_texts(line):
    """The line with the insides of its string literals blanked, so that nothing in them is changed."""
    return re.sub(r'"(?:\\.|[^"\\])*"', lambda m: '"' + "\x00" * (len(m[0]) - 2) + '"', line)


def mutations_of(path, text):
    lines = text.split("\n")
    for number, line in enumerate(lines):
        if CODE.match(line) or line.lstrip().startswith(("static_assert", "Q_", "using", "namespace", "template")):
            continue
        code = without_texts(line.split(" //")[0])
        for kind, pattern, replacement in REPLACEMENTS:
            for match in pattern.finditer(code):
                changed = line[: match.start()] + replacement(_Kept(match, line)) + line[match.end():]
                if changed != line:
                    yield (kind, path, number, [line], [changed])
        if CALL.match(code) and not code.lstrip().startswith("return"):
            yield ("deleted call", path, number, [line], [""])
            following = lines[number + 1] if number + 1 < len(lines) else ""
            if CALL.match(without_texts(following)) and following != line:
                yield ("order", path, number, [line, following], [following, line])
        if ASSIGNMENT.match(code) and not re.match(r"^\s+(const|auto|int|bool|float|double)\b", code):
            yield ("deleted assignment", path, number, [line], [""])


class _Kept:
    """A match whose groups come from the original line."""

    def __init__(self, match, line):
        self._match, self._line = match, line

    def __getitem__(self, group):
        return self._line[self._match.start(group): self._match.end(group)]


def choose(root, count, seed):
    """As many mutations of every room and kind as its share of the sources, in an order that the seed decides."""
    everything = []
    for room in ROOMS:
        for path in sorted((root / room).rglob("*.cpp")) + sorted((root / room).rglob("*.h")):
            everything += list(mutations_of(str(path.relative_to(root)), path.read_text()))
    random.Random(seed).shuffle(everything)
    chosen, lines = [], set()
    for mutation in everything:
        if (mutation[1], mutation[2]) not in lines:
            lines.add((mutation[1], mutation[2]))
            chosen.append(mutation)
    return chosen, len(everything)


def name_of(mutation):
    kind, path, number, before, after = mutation
    key = "\t".join([kind, path, *before, *after])
    return hashlib.sha256(key.encode()).hexdigest()[:12]


class Workshop:
    """A copy of the tree with a build folder of its own."""

    def __init__(self, root, folder):
        self.tree, self.build = folder / "tree", folder / "build"
        self.tree.mkdir(parents=True, exist_ok=True)
        listed = subprocess.run(["git", "ls-files", "-z"], cwd=root, capture_output=True, check=True).stdout
        for name in filter(None, listed.decode().split("\0")):
            source, target = root / name, self.tree / name
            if source.is_file() and (not target.exists() or target.read_bytes() != source.read_bytes()):
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)
        self.run(["cmake", "-G", "Ninja", "-S", self.tree, "-B", self.build, "-DCMAKE_BUILD_TYPE=Debug",
                  "-DCMAKE_CXX_FLAGS_DEBUG=-O0"], check=True)
        self.run(["cmake", "--build", self.build], check=True)

    def run(self, command, check=False, timeout=None):
        try:
            done = subprocess.run(["nice", *map(str, command)], capture_output=True, text=True, timeout=timeout)
        except subprocess.TimeoutExpired:
            return False, "timed out"
        if check and done.returncode != 0:
            sys.exit(done.stdout + done.stderr)
        return done.returncode == 0, done.stdout

    def test(self, *selection):
        ok, text = self.run(["ctest", "--test-dir", self.build, "--stop-on-failure", "--timeout", TEST_TIMEOUT,
                             "--no-tests=ignore", *selection])
        failed = re.search(r"\s(\d+) - (\S+) \((?:Failed|Timeout|SEGFAULT|Subprocess aborted|Child aborted|ILLEGAL)", text)
        return ok, failed[2] if failed else ""

    def judge(self, mutation):
        """Returns 'noticed', 'survived' or 'no code', and the test that noticed."""
        _, path, number, before, after = mutation
        file = self.tree / path
        original = file.read_text()
        lines = original.split("\n")
        assert lines[number: number + len(before)] == before
        lines[number: number + len(before)] = after
        file.write_text("\n".join(lines))
        try:
            room = path.split("/")[0]
            labels = {"sdk": "sdk|widgets", "panel": "plugin|sections"}.get(room, room)
            targets = [f"test_{label}" for label in labels.split("|")]
            if not self.run(["cmake", "--build", self.build, "--target", *targets])[0]:
                return "no code", "compiler"
            ok, test = self.test("-L", f"^({labels})$")
            if not ok:
                return "noticed", test
            if not self.run(["cmake", "--build", self.build])[0]:
                return "no code", "compiler"
            ok, test = self.test("-LE", f"^({labels})$")
            return ("survived", "") if ok else ("noticed", test)
        finally:
            file.write_text(original)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--count", type=int, default=200, help="mutations that compile (200)")
    parser.add_argument("--seed", type=int, default=1, help="chooses the mutations (1)")
    parser.add_argument("--jobs", type=int, default=2, help="mutations at a time (2)")
    parser.add_argument("--minutes", type=float, default=0, help="end after so many minutes; 0: when all are judged")
    parser.add_argument("--list", action="store_true", help="only list the mutations")
    arguments = parser.parse_args()
    root = pathlib.Path(__file__).resolve().parent.parent
    chosen, possible = choose(root, arguments.count, arguments.seed)
    if arguments.list:
        for kind, path, number, before, after in chosen[: arguments.count]:
            print(f"{path}:{number + 1}: {kind}: {before[0].strip()}  ->  {after[0].strip()}")
        return 0

    folder = root / "build" / "mutation"
    folder.mkdir(parents=True, exist_ok=True)
    results = folder / "results.tsv"
    known = {}
    if results.exists():
        for line in results.read_text().splitlines():
            fields = line.split("\t")
            known[fields[0]] = fields
    work, judged, lock = queue.Queue(), [], threading.Lock()
    for mutation in chosen:
        work.put(mutation)
    end = time.monotonic() + arguments.minutes * 60 if arguments.minutes else float("inf")

    def enough():
        return len(judged) >= arguments.count or time.monotonic() > end

    def labour(number):
        workshop = Workshop(root, folder / str(number))
        while not enough():
            try:
                mutation = work.get_nowait()
            except queue.Empty:
                return
            name = name_of(mutation)
            if name in known:
                fields = known[name]
            else:
                verdict, test = workshop.judge(mutation)
                kind, path, line, before, after = mutation
                fields = [name, verdict, test, kind, f"{path}:{line + 1}", before[0].strip(), after[0].strip()]
                with lock, results.open("a") as file:
                    file.write("\t".join(fields) + "\n")
            if fields[1] != "no code":
                with lock:
                    judged.append(fields)
                    print(f"{len(judged):4} {fields[1]:9} {fields[4]}: {fields[3]} {fields[2]}", flush=True)

    workers = [threading.Thread(target=labour, args=(number,)) for number in range(arguments.jobs)]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()

    survivors = [fields for fields in judged if fields[1] == "survived"]
    noticed = len(judged) - len(survivors)
    print(f"\n{possible} possible, {len(judged)} judged, {noticed} noticed "
          f"({100 * noticed / max(1, len(judged)):.1f} %), {len(survivors)} survived")
    for fields in survivors:
        print(f"  {fields[4]}: {fields[3]}: {fields[5]}  ->  {fields[6]}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
