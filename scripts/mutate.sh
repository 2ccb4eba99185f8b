#!/usr/bin/env python3
"""Mutation run: how many one-token faults in the screen's records, grid and schemes
code do the screen tests and the session scenarios catch?

Draws lines at random (fixed seed) from the .cpp files of src/records, src/grid and
src/schemes, changes one token on each, rebuilds in a build folder of its own, runs
the screen suites and the session scenarios, and records the verdict:
  caught        a test failed or the run timed out
  survived      every test passed
  no-compile    the mutant did not build (not counted)
The mutated file is put back after every mutant, on an error and on Ctrl-C; a copy
of the original waits in the build folder until it is, and is put back by the next
run if this one was killed outright.

  scripts/mutate.sh [-n COUNT] [--seed S] [--build DIR] [--jobs J] [--report FILE]

COUNT is the number of counted mutants (caught + survived) to reach.
"""
import argparse
import json
import os
import random
import re
import signal
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDERS = ["src/records", "src/grid", "src/schemes"]
BUILD_TARGETS = ["tests_screen", "tests_session", "dispatch"]
TESTS = r"^(screen|session)\."

# One-token changes; each pattern's group 1 is the token replaced.
COMPARISONS = {"==": "!=", "!=": "==", "<": ">=", ">=": "<", ">": "<=", "<=": ">"}
OPERATORS = [
    # Comparisons written with a blank on both sides, so templates and streams are left alone.
    (re.compile(r"(?<=\s)(==|!=|<=|>=|<|>)(?=\s)"), lambda t: COMPARISONS[t]),
    (re.compile(r"(&&|\|\|)"), lambda t: "||" if t == "&&" else "&&"),
    (re.compile(r"\b(true|false)\b"), lambda t: "false" if t == "true" else "true"),
    (re.compile(r"(?<![\w.'])([01])(?![\w.'])"), lambda t: "1" if t == "0" else "0"),
]
# An integer argument or index: a literal right after ( [ or , and before ) ] or ,
ARGUMENT = re.compile(r"(?<=[\[(,])\s*(\d+)(?=\s*[\]),])")


def code_only(line):
    """The line with string and character literals and any // comment blanked out."""
    out, i, quote = [], 0, None
    while i < len(line):
        c = line[i]
        if quote:
            if c == "\\":
                out.append("  ")
                i += 2
                continue
            if c == quote:
                quote = None
                out.append(c)
            else:
                out.append(" ")
        elif c in "\"'":
            quote = c
            out.append(c)
        elif line.startswith("//", i):
            out.append(" " * (len(line) - i))
            break
        else:
            out.append(c)
        i += 1
    return "".join(out)[: len(line)]


def mutations(line):
    """Every one-token change the line allows, as (start, end, replacement)."""
    stripped = line.strip()
    if not stripped or stripped.startswith(("//", "/*", "*", "#")) or "static_assert" in line:
        return []
    code = code_only(line)
    found = []
    for pattern, swap in OPERATORS:
        for m in pattern.finditer(code):
            found.append((m.start(1), m.end(1), swap(m.group(1))))
    for m in ARGUMENT.finditer(code):
        value = int(m.group(1))
        found.append((m.start(1), m.end(1), str(value + 1)))
        if value > 0:
            found.append((m.start(1), m.end(1), str(value - 1)))
    return sorted(set(found))


def candidate_lines():
    lines = []
    for folder in FOLDERS:
        for path in sorted((ROOT / folder).rglob("*.cpp")):
            text = path.read_text().split("\n")
            in_block_comment = False
            for number, line in enumerate(text, 1):
                if in_block_comment:
                    in_block_comment = "*/" not in line
                    continue
                if line.strip().startswith("/*"):
                    in_block_comment = "*/" not in line
                    continue
                if mutations(line):
                    lines.append((path, number))
    return lines


class Restorer:
    """Holds the original text of the file being mutated and puts it back."""

    def __init__(self, build):
        self.saved = build / "mutate-original.json"
        self.path = None
        self.text = None

    def recover_left_over(self):
        if self.saved.exists():
            left = json.loads(self.saved.read_text())
            Path(left["path"]).write_text(left["text"])
            self.saved.unlink()
            print(f"put back {left['path']} left mutated by an earlier run")

    def mutate(self, path, text):
        self.path, self.text = path, path.read_text()
        self.saved.write_text(json.dumps({"path": str(path), "text": self.text}))
        path.write_text(text)

    def restore(self):
        if self.path is not None:
            self.path.write_text(self.text)
            self.saved.unlink(missing_ok=True)
            self.path = self.text = None


def run(cmd, timeout=None):
    """Exit status of the command, or "timeout"; on a timeout or an interruption the
    command goes down with everything it started."""
    proc = subprocess.Popen(cmd, cwd=ROOT, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                            start_new_session=True)
    try:
        return proc.wait(timeout=timeout)
    except subprocess.TimeoutExpired:
        return "timeout"
    finally:
        if proc.poll() is None:
            os.killpg(proc.pid, signal.SIGKILL)
            proc.wait()


def build(args):
    return run(["cmake", "--build", str(args.build), f"-j{args.jobs}", "--target", *BUILD_TARGETS])


def test(args):
    return run(["ctest", "--test-dir", str(args.build), "-R", TESTS, "-j2", "--stop-on-failure",
                "--timeout", str(args.test_timeout)], timeout=args.run_timeout)


def main():
    p = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    p.add_argument("-n", "--count", type=int, default=40)
    p.add_argument("--seed", type=int, default=1)
    p.add_argument("--build", type=Path, default=ROOT / "build-mutate")
    p.add_argument("--jobs", type=int, default=1)
    p.add_argument("--report", type=Path, default=None)
    p.add_argument("--test-timeout", type=int, default=60, help="seconds for one test")
    p.add_argument("--run-timeout", type=int, default=600, help="seconds for the whole test run")
    args = p.parse_args()

    if ROOT.resolve() == Path("/work/main").resolve():
        sys.exit("mutate.sh does not run in /work/main")
    args.build = args.build.resolve()
    args.report = (args.report or args.build / "mutation-report.txt").resolve()

    # Unoptimised and without debug information: the quickest build to compile and link.
    subprocess.run(["cmake", "-S", str(ROOT), "-B", str(args.build), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                    "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DDISPATCH_BENCHMARKS=OFF"], check=True, stdout=subprocess.DEVNULL)
    restorer = Restorer(args.build)
    restorer.recover_left_over()

    # Ctrl-C and kill both end in the finally below, which puts the file back; Ctrl-C is
    # armed even where the shell started the run in the background with it ignored.
    signal.signal(signal.SIGINT, signal.default_int_handler)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    signal.signal(signal.SIGHUP, lambda *_: sys.exit(129))

    print("baseline build and tests ...", flush=True)
    if build(args) != 0 or test(args) != 0:
        sys.exit("the unmutated tree does not build or its tests fail; nothing to measure")

    rng = random.Random(args.seed)
    lines = candidate_lines()
    rng.shuffle(lines)
    rows, totals = [], {"caught": 0, "survived": 0, "no-compile": 0}
    interrupted = True
    try:
        for path, number in lines:
            if totals["caught"] + totals["survived"] >= args.count:
                break
            text = path.read_text().split("\n")
            original = text[number - 1]
            start, end, replacement = rng.choice(mutations(original))
            mutant = original[:start] + replacement + original[end:]
            text[number - 1] = mutant
            restorer.mutate(path, "\n".join(text))
            began = time.time()
            # A build that fails twice is the mutant's; once may be the machine's.
            if build(args) != 0 and build(args) != 0:
                verdict = "no-compile"
            else:
                verdict = "survived" if test(args) == 0 else "caught"
            restorer.restore()
            totals[verdict] += 1
            rel = path.relative_to(ROOT)
            rows.append(f"{verdict:<10} {rel}:{number}\n    - {original.strip()}\n    + {mutant.strip()}")
            print(f"{verdict:<10} {rel}:{number} ({time.time() - began:.0f}s)  {mutant.strip()}", flush=True)
        interrupted = False
    finally:
        restorer.restore()
        # An interrupted run still reports what it measured.
        counted = totals["caught"] + totals["survived"]
        share = f"{100 * totals['caught'] / counted:.0f}%" if counted else "-"
        summary = (f"seed {args.seed}, counted {counted}: caught {totals['caught']}, survived "
                   f"{totals['survived']} ({share} caught); did not compile {totals['no-compile']}"
                   + (" (interrupted)" if interrupted else ""))
        args.report.write_text("\n".join(rows) + "\n\n" + summary + "\n")
        print(summary)
        print(f"report: {args.report}")
        build(args)  # leave the build folder matching the tree


if __name__ == "__main__":
    main()
