#!/usr/bin/env python3
"""Watches the tests of what runs on several threads under Helgrind: tools/threads.py FOLDER [PROGRAM[:FUNCTION,...]...]

Writes "PASS name" or "FAIL name" a line for each program to threads.txt in FOLDER, and what Helgrind said beside it.
A program passes if its tests do and no race in it is ours: one in which each of the two accesses has a line of this
repository among its innermost frames. All others are in Qt, WebKit or D-Bus, whose atomics Helgrind doesn't know.
First comes a program that races on purpose and passes if that is found.
tools/threads.py --targets prints what has to be built.
"""

import subprocess
import sys
import xml.etree.ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
BUILD = ROOT / "build/dev"
# Wi-Fi, saving, exports, and the observer of the links. What waits for the window's thread by a blocking call, as
# tst_settings_threads does, isn't for Helgrind: it sees no order in Qt's semaphores.
PROGRAMS = ["tst_wifi", "tst_settings_dialogs", "tst_log_store", "tst_save_service", "tst_export_jobs",
            "tst_viewer_host:thePhaseWarningGoesWithTheLink"]
RACING = "racing"
SUPPRESSIONS = ["tests/unit/foundation/helgrind.supp", "tools/threads.supp"]
INNERMOST = 6  # frames of an access that may make it ours
LIMIT_SECONDS = 600


def is_ours(frame):
    """By the source where it is known, for much of Qt and of the standard library stands in our programs."""
    folder = frame.findtext("dir")
    if folder:
        return Path(folder).is_relative_to(ROOT)
    return Path(frame.findtext("obj") or "").is_relative_to(BUILD)


def accesses_of(error):
    """Frames of the two accesses; only one if Helgrind has forgotten the other. Where the memory came from is none."""
    stacks = []
    belongs = True
    for part in error:
        if part.tag in ("auxwhat", "xauxwhat"):
            text = part.text if part.tag == "auxwhat" else part.findtext("text")
            belongs = (text or "").startswith("This conflicts with")
        elif part.tag == "stack" and belongs:
            stacks.append(part.findall("frame")[:INNERMOST])
            belongs = False
    return stacks


def races_of(report):
    """How many races a report of Helgrind has, and the texts of those that are ours."""
    count = 0
    ours = []
    for error in xml.etree.ElementTree.parse(report).iter("error"):
        if error.findtext("kind") != "Race":
            continue
        count += 1
        accesses = accesses_of(error)
        if all(any(map(is_ours, frames)) for frames in accesses):
            ours.append("\n".join([error.findtext("xwhat/text"), *map(text_of, accesses)]))
    return count, ours


def text_of(frames):
    lines = []
    for frame in frames:
        name = frame.findtext("fn") or Path(frame.findtext("obj") or "?").name
        place = f" {frame.findtext('file')}:{frame.findtext('line')}" if frame.findtext("line") else ""
        lines.append(f"{'by' if lines else 'at'} {name[:120]}{place}")
    return "\n".join(f"    {line}" for line in lines)


def status_of(command, log):
    """The exit status; None if the time was up."""
    with open(log, "wb") as stream, subprocess.Popen(command, cwd=ROOT, stdout=stream, stderr=stream) as process:
        try:
            return process.wait(LIMIT_SECONDS)
        except subprocess.TimeoutExpired:
            process.terminate()  # takes the screen and the program along
            return None


def watch(name, functions, folder):
    """Runs a program: what was wrong with the run, the races in all, the texts of those that are ours."""
    report = folder / f"{name}.helgrind.xml"
    log = folder / f"{name}.helgrind.log"
    status = status_of(
        ["tools/headless.sh", "--clean-home", "valgrind", "--tool=helgrind", "--quiet", "--error-limit=no",
         "--child-silent-after-fork=yes", "--num-callers=20", "--xml=yes", f"--xml-file={report}",
         *(f"--suppressions={file}" for file in SUPPRESSIONS), str(BUILD / "bin" / name), *functions], log)
    wrong = []
    if status != 0:
        tail = log.read_text(errors="replace").splitlines()[-20:]
        wrong = ["it took too long" if status is None else f"it ended with {status}", *tail]
    try:
        return wrong, *races_of(report)
    except (OSError, xml.etree.ElementTree.ParseError) as error:
        return [*wrong, f"no report of Helgrind: {error}"], 0, []


def main():
    if sys.argv[1:] == ["--targets"]:
        print(*(program.partition(":")[0] for program in [RACING, *PROGRAMS]), sep="\n")
        return 0
    folder = Path(sys.argv[1]).resolve()
    failed = False
    with open(folder / "threads.txt", "w") as results:
        for program in [RACING, *(sys.argv[2:] or PROGRAMS)]:
            name, _, functions = program.partition(":")
            wrong, count, ours = watch(name, functions.split(",") if functions else [], folder)
            good = not wrong and bool(ours) == (name == RACING)
            failed = failed or not good
            verdict = f"{'PASS' if good else 'FAIL'} {name}"
            print(f"{verdict}: {count} races, {len(ours)} ours", flush=True)
            if not good:
                print(*wrong, *ours, sep="\n", flush=True)
            print(verdict, file=results, flush=True)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
