"""Nothing stands in a file that should have gone before the commit."""

import re

# Put together here, for this file is checked too.
MARKS = re.compile(r"\b(" + "|".join(["TO" + "DO", "FIX" + "ME", "XX" + "X", "HA" + "CK", "TB" + "D"]) + r")\b")
CONFLICT = re.compile(r"^(<{7} |={7}$|>{7} )")
MACHINE = re.compile(r"(?<![\w.])/(" + "|".join(["home/", "root/", "work/", "Users/"]) + ")")
FREE = {"package-lock.json"}
MAX_LINES = 400
CODE = {".cpp", ".h", ".js", ".py", ".sh"}


def faults_of(file, text):
    if "\r" in text:
        yield f"{file}: a carriage return; lines end in a line feed"
    if text and not text.endswith("\n"):
        yield f"{file}: the last line has no end"
    lines = text.splitlines()
    for number, line in enumerate(lines, 1):
        place = f"{file}:{number}"
        if MARKS.search(line):
            yield f"{place}: a mark of something unfinished"
        if CONFLICT.match(line):
            yield f"{place}: a mark of a merge conflict"
        if MACHINE.search(line):
            yield f"{place}: a path of one machine"
        if line != line.rstrip() and file.suffix != ".md":
            yield f"{place}: white space at the end of the line"
    if file.suffix in CODE and len(lines) > MAX_LINES:
        yield f"{file}: {len(lines)} lines; a file has {MAX_LINES} at most"


def check(root, files):
    faults = []
    for file in files:
        if file.name in FREE:
            continue
        try:
            faults += faults_of(file, (root / file).read_bytes().decode("utf-8"))
        except UnicodeDecodeError:
            faults.append(f"{file}: not UTF-8")
    return faults
