#!/usr/bin/env python3
"""tally.py FOLDER: sums up what the steps of ./test left in FOLDER.

Reads lint.txt, fuzz.txt and threads.txt ("PASS name" or "FAIL name" a line), pages.tap (Node's test runner) and
ctest.xml (JUnit form), most with the exit status of their step beside them, prints the slowest tests and what failed,
and closes with "N passed, N failed".
A Qt Test program counts by its test functions and data rows, any other test as one. A step that failed
without naming a failed test counts as one failure, so that nothing that went wrong can end in "0 failed".
Exit status: 0 only if something passed and nothing failed.
"""

import re
import sys
import xml.etree.ElementTree
from pathlib import Path

QT_RESULT = re.compile(r"^(PASS|FAIL!|XPASS|SKIP|XFAIL|BPASS|BFAIL)\s*: (\w+)::(\w+)\((.*?)\)", re.MULTILINE)
FRAME = ("initTestCase", "cleanupTestCase")
SHOWN_LINES = 60
SLOWEST = 10


class Sum:
    """Passed, failed (by name) and skipped tests."""

    def __init__(self):
        self.passed = 0
        self.failed = []
        self.skipped = []
        self.details = []
        self.seconds = {}

    def fail(self, name, detail=""):
        self.failed.append(name)
        if detail.strip():
            self.details.append(f"--- {name}\n{detail.rstrip()}")


def text_of(folder, name):
    """The text of a file in the folder, empty if a step left none."""
    file = folder / name
    return file.read_text(errors="replace") if file.exists() else ""


def status_of(folder, step):
    """The exit status that a step left, or None if it left none."""
    file = folder / f"{step}.status"
    return int(file.read_text()) if file.exists() else None


def add_verdicts(total, folder, step):
    failed_before = len(total.failed)
    for line in text_of(folder, f"{step}.txt").splitlines():
        verdict, _, name = line.partition(" ")
        if verdict == "PASS":
            total.passed += 1
        else:
            total.fail(f"{step}: {name}")
    if status_of(folder, step) not in (0, None) and len(total.failed) == failed_before:
        total.fail(step)


def add_pages(total, folder):
    """Node's TAP: leaves of the tree count, a file or a suite that only holds others does not."""
    text = text_of(folder, "pages.tap")
    counts = {key: int(number) for key, number in re.findall(r"^# (pass|fail|skipped) (\d+)$", text, re.MULTILINE)}
    total.passed += counts.get("pass", 0)
    total.skipped += ["page test"] * counts.get("skipped", 0)
    failed = counts.get("fail", 0)
    if failed == 0 and status_of(folder, "pages") not in (0, None):
        failed = 1
    if failed:
        lines = [line for line in text.splitlines() if "duration_ms" not in line]
        bad = [number for number, line in enumerate(lines) if re.match(r"\s*not ok ", line)]
        excerpt = [line for number in bad for line in lines[number : number + 25]] or lines[-SHOWN_LINES:]
        total.fail("page tests", "\n".join(excerpt[: 2 * SHOWN_LINES]))
        total.failed += ["page tests"] * (failed - 1)


def add_case(total, case):
    """One test of ctest: its functions when it is a Qt Test program."""
    name = case.get("name")
    output = case.findtext("system-out") or ""
    status = case.get("status")
    total.seconds[name] = float(case.get("time") or 0)
    if status == "disabled":
        total.skipped.append(name)
        return
    results = [(verdict, f"{name}: {function}({row})") for verdict, _, function, row in QT_RESULT.findall(output)
               if verdict in ("FAIL!", "XPASS") or function not in FRAME]
    failed_before = len(total.failed)
    for verdict, function in results:
        if verdict in ("FAIL!", "XPASS"):
            total.fail(function)
        elif verdict == "SKIP":
            total.skipped.append(function)
        elif verdict == "PASS":
            total.passed += 1
    if status == "run":
        if not results:
            total.passed += 1
        return
    lines = output.splitlines()
    bad = [number for number, line in enumerate(lines) if re.match(r"FAIL!|XPASS", line)]
    excerpt = [line for number in bad for line in lines[number : number + 4]] or lines[-SHOWN_LINES:]
    failure = case.find("failure")
    message = failure.get("message", "") if failure is not None else ""
    total.details.append("\n".join([f"--- {name} {message}".rstrip(), *excerpt[: 2 * SHOWN_LINES]]))
    if len(total.failed) == failed_before:
        # It crashed, ran out of time or could not start.
        total.fail(name)


def add_ctest(total, folder):
    file = folder / "ctest.xml"
    failed_before = len(total.failed)
    if file.exists():
        for case in xml.etree.ElementTree.parse(file).iter("testcase"):
            add_case(total, case)
    if status_of(folder, "ctest") not in (0, None) and len(total.failed) == failed_before:
        total.fail("ctest", "\n".join(text_of(folder, "ctest.log").splitlines()[-SHOWN_LINES:]))


def main():
    folder = Path(sys.argv[1])
    total = Sum()
    if (folder / "build.failed").exists():
        total.fail("the build")
    add_verdicts(total, folder, "lint")
    add_pages(total, folder)
    add_ctest(total, folder)
    add_verdicts(total, folder, "fuzz")
    add_verdicts(total, folder, "threads")
    slowest = sorted(total.seconds.items(), key=lambda item: -item[1])[:SLOWEST]
    if slowest:
        print("Slowest:", ", ".join(f"{name} {seconds:.0f} s" for name, seconds in slowest))
    for text in total.details:
        print(text)
    if total.failed:
        print("Failed:", *sorted(set(total.failed)), sep="\n  ")
    if total.skipped:
        print("Skipped:", *sorted(set(total.skipped)), sep="\n  ")
    print(f"{total.passed} passed, {len(total.failed)} failed")
    return 0 if total.passed and not total.failed else 1


if __name__ == "__main__":
    sys.exit(main())
