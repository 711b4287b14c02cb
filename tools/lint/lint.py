#!/usr/bin/env python3
"""lint.py [--results FILE] [--root FOLDER] [CHECK...]: runs the checks of the source, or only those named.

Each check is a module with check(root, files) that gives a list of messages, empty when all is well. The checks
are themselves tested, by tests/lint/test_checks.py, which runs here as the first of them.
Writes "PASS name" or "FAIL name" a line to FILE. Exit status: 0 only if all passed.
"""

import argparse
import subprocess
import sys
import time
from pathlib import Path

import arrows
import layout
import scripts
import shell
import strays
import tidy
from sources import sources


def self_test(root, files):
    result = subprocess.run(
        [sys.executable, "-m", "unittest", "discover", "-s", "tests/lint"],
        cwd=root, text=True, capture_output=True, check=False,
    )
    return result.stderr.splitlines() if result.returncode else []


CHECKS = {
    "self-test": self_test,
    "arrows": arrows.check,
    "strays": strays.check,
    "layout": layout.check,
    "shell": shell.check,
    "scripts": scripts.check,
    "tidy": tidy.check,
}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--results", type=Path)
    parser.add_argument("--root", type=Path, default=Path(__file__).resolve().parents[2])
    parser.add_argument("check", nargs="*", choices=[*CHECKS, []])
    options = parser.parse_args()
    files = sources(options.root)
    verdicts = []
    for name in options.check or CHECKS:
        start = time.monotonic()
        faults = CHECKS[name](options.root, files)
        verdicts.append(f"{'FAIL' if faults else 'PASS'} {name}")
        print(f"lint: {name}: {f'{len(faults)} faults' if faults else 'good'}, {time.monotonic() - start:.1f} s")
        for fault in faults:
            print(f"  {fault}")
    if options.results:
        options.results.write_text("\n".join(verdicts) + "\n")
    return 1 if any(verdict.startswith("FAIL") for verdict in verdicts) else 0


if __name__ == "__main__":
    sys.exit(main())
