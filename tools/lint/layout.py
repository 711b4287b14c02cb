"""C++ files stand as .clang-format says."""

import collections
import re
import subprocess

from sources import cpp_files

FAULT = re.compile(r"^(.*?):(\d+):\d+: error: code should be clang-formatted")


def check(root, files):
    names = [str(file) for file in cpp_files(files)]
    if not names:
        return []
    result = subprocess.run(
        ["clang-format", "--dry-run", "-Werror", *names], cwd=root, text=True, capture_output=True, check=False
    )
    lines = collections.defaultdict(list)
    for match in filter(None, map(FAULT.match, result.stderr.splitlines())):
        lines[match[1]].append(match[2])
    faults = [f"{file}:{places[0]}: clang-format -i would change {len(places)} places" for file, places in lines.items()]
    return faults or (result.stderr.splitlines() or ["clang-format failed"] if result.returncode else [])
