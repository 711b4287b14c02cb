"""clang-tidy over all C++ files, fast enough for every run.

Nearly all of clang-tidy's time goes into the headers of Qt, some five seconds a file, so files are checked
many at a time: a generated file includes them one after the other. Where two files have the same name in an unnamed
namespace, constants get another one on the way and other names keep the files apart; where two still don't go
together, those that the compiler stumbled over are checked again. A file that passed is not checked again
until it, a header of ours that it reaches, the flags or .clang-tidy change; all clones of a user share what passed.
"""

import concurrent.futures
import hashlib
import json
import os
import re
import shlex
import subprocess
from pathlib import Path

MOST_AT_A_TIME = 60
ENTRIES = ["main", "LLVMFuzzerTestOneInput"]
INCLUDE = re.compile(rb'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
UNNAMED = re.compile(r"^namespace \{$(.*?)^\}", re.MULTILINE | re.DOTALL)
# A name that a line at the margin declares: function, variable, type.
DECLARED = re.compile(r"^(?!using namespace)[A-Za-z_].*?([A-Za-z_]\w*)\s*(?:[({;\[]|= )", re.MULTILINE)
CONSTANT = re.compile(r"k[A-Z]\w*")
STATIC = re.compile(r"^static .*?([A-Za-z_]\w*)\s*(?:[({;\[]|= )", re.MULTILINE)
FAULT = re.compile(r"^(?P<file>[^:\s][^:]*):(?P<place>\d+:\d+): (?:warning|error): (?P<text>.*)$")
BROKEN = "[clang-diagnostic-error]"
MISSING = "file not found"


def private_names(file):
    """Names that only this file should know, as far as a glance at the text tells."""
    text = file.read_text(encoding="utf-8", errors="replace")
    return set(STATIC.findall(text)).union(*map(DECLARED.findall, UNNAMED.findall(text)))


def included(number, file):
    """The lines that include a file among others: its constants and its entry are its own."""
    names = sorted(filter(CONSTANT.fullmatch, private_names(file))) + ENTRIES
    return "".join([*(f"#define {name} {name}{number}\n" for name in names), f'#include "{file}"\n',
                    *(f"#undef {name}\n" for name in names)])


class Tidy:
    def __init__(self, root, work, config):
        self.root = root
        self.work = work
        self.config = config
        self.headers = {}
        work.mkdir(parents=True, exist_ok=True)
        version = subprocess.run(["clang-tidy", "--version"], capture_output=True, check=True).stdout
        self.basis = version + config.read_bytes() + Path(__file__).read_bytes()

    def reached(self, path, seen):
        """path and every file of ours that it includes, directly or not, into seen."""
        if path in seen or not path.is_file():
            return seen
        seen.add(path)
        if path not in self.headers:
            content = path.read_bytes()
            self.headers[path] = (content, [self.root / name.decode() for name in INCLUDE.findall(content)])
        for header in self.headers[path][1]:
            self.reached(header, seen)
        return seen

    def key(self, path, flags):
        """Of all that the result depends on; the same in each clone."""
        flags = "\0".join(flags).replace(str(self.root), ".")
        digest = hashlib.sha256(self.basis + flags.encode())
        for file in sorted(self.reached(path, set())):
            digest.update(str(file.relative_to(self.root)).encode() + b"\0" + self.headers[file][0])
        return digest.hexdigest()

    def run(self, files, flags):
        """Checks the files together; gives the faults as (file, message)."""
        name = hashlib.sha256("\0".join(map(str, files)).encode()).hexdigest()[:16]
        together = self.work / f"{os.getpid()}-{name}.cpp"
        together.write_text("".join(included(number, file) for number, file in enumerate(files)))
        command = ["clang-tidy", "--quiet", f"--config-file={self.config}",
                   f"--header-filter=^{re.escape(str(self.root))}/(livecontrol|simulator|viewer|tests|bench|fuzz)/",
                   str(together), "--", *flags, "-w", "-ferror-limit=0"]
        result = subprocess.run(command, cwd=self.root, text=True, capture_output=True, check=False)
        together.unlink()
        faults = [(Path(match["file"]), f"{match['file']}:{match['place']}: {match['text']}")
                  for match in map(FAULT.match, result.stdout.splitlines()) if match]
        if result.returncode and not faults:
            faults = [(files[0], f"{files[0]}: clang-tidy failed: {result.stdout}{result.stderr}")]
        return faults

    def check(self, files, flags):
        """Like run(), but takes files apart that don't go together."""
        faults = self.run(files, flags)
        broken = {file for file, message in faults if BROKEN in message}
        # After a header that isn't there the compiler gives up, and whatever else it says is doubtful.
        missing = [fault for fault in faults if MISSING in fault[1]]
        if not broken or len(files) == 1 or missing:
            return [(files, missing or faults)]
        apart = [file for file in files if file in broken]
        rest = [file for file in files if file not in broken]
        if not apart or not rest:
            half = len(files) // 2
            apart, rest = files[:half], files[half:]
        return self.check(rest, flags) + self.check(apart, flags)


def flags_of(command, root):
    """What clang needs of a compiler's command line: no warnings, no precompiled header of another compiler."""
    words = shlex.split(command)
    flags = ["-fPIC", f"-I{root}"]
    for number, word in enumerate(words):
        if word.startswith(("-I", "-D", "-std=")):
            flags.append(word)
        elif word == "-isystem":
            flags += [word, words[number + 1]]
        elif word == "-include" and words[number + 1].endswith("cmake_pch.hxx"):
            flags += ["-include", str(root / "cmake/qt_pch.h")]
    return flags


def pairs_of(flags):
    """Words that belong together, as tuples."""
    words = iter(flags)
    return [(word, next(words)) if word in ("-isystem", "-include") else (word,) for word in words]


def definitions_of(pairs):
    """Name and value of what the words define."""
    return dict((pair[0].partition("=")[::2]) for pair in pairs if pair[0].startswith(("-D", "-std")))


def groups_of(root, build):
    """Files with the flags of all of them, in as few groups as definitions that contradict each other allow."""
    groups = []
    for entry in json.loads((build / "compile_commands.json").read_text()):
        file = Path(entry["directory"], entry["file"]).resolve()
        if build in file.parents or not file.is_relative_to(root):
            continue
        pairs = pairs_of(flags_of(entry["command"], root))
        defined = definitions_of(pairs)
        group = next((group for group in groups
                      if all(group[2].get(name, value) == value for name, value in defined.items())), None)
        if group is None:
            group = ([], {}, {})
            groups.append(group)
        group[0].append(file)
        group[1].update(dict.fromkeys(pairs))
        group[2].update(defined)
    return [(sorted(set(files)), [word for pair in pairs for word in pair]) for files, pairs, _ in groups]


def portions(files):
    """Deals the files out to portions that are not too large and in which no private name stands twice."""
    dealt = []
    for file in files:
        names = {name for name in private_names(file) if not CONSTANT.fullmatch(name)}
        place = next((entry for entry in dealt if len(entry[0]) < MOST_AT_A_TIME and not names & entry[1]), None)
        if place is None:
            place = ([], set())
            dealt.append(place)
        place[0].append(file)
        place[1].update(names)
    return [entry[0] for entry in dealt]


class Memory:
    """The keys of what passed, the latest first, in a file."""

    MOST = 20000

    def __init__(self, path):
        self.path = path

    def keys(self):
        return self.path.read_text().split() if self.path.exists() else []

    def add(self, keys):
        """Puts them in front. Others may do so at the same time: one of them loses what it can find out again."""
        self.path.parent.mkdir(parents=True, exist_ok=True)
        kept = dict.fromkeys([*sorted(keys), *self.keys()])
        written = self.path.with_name(f"{self.path.name}.{os.getpid()}")
        written.write_text("\n".join(list(kept)[:self.MOST]))
        written.replace(self.path)


def shared_memory():
    cache = os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache"
    return Memory(Path(cache) / "livecontrol/tidy-passed")


def check_groups(tidy, groups, memory):
    """Checks what is not in memory, where what passed is put; gives the faults."""
    known = set(memory.keys())
    keys = {(file, tuple(flags)): tidy.key(file, flags) for files, flags in groups for file in files}
    jobs = []
    for files, flags in groups:
        new = [file for file in files if keys[file, tuple(flags)] not in known]
        jobs += [(portion, flags) for portion in portions(new)] if new else []
    jobs.sort(key=lambda job: -len(job[0]))
    messages = {}
    passed = known & set(keys.values())
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        futures = {pool.submit(tidy.check, *job): job for job in jobs}
        for future in concurrent.futures.as_completed(futures):
            flags = tuple(futures[future][1])
            for files, faults in future.result():
                if any(MISSING in message for _, message in faults):
                    messages.update(dict.fromkeys(message for _, message in faults))
                    continue
                messages.update(dict.fromkeys(message for _, message in faults))
                # A fault in a header may come from any of them.
                guilty = {file for file, _ in faults}
                if guilty <= set(files):
                    passed |= {keys[file, flags] for file in files if file not in guilty}
    memory.add(passed)
    return list(messages)


def check(root, files, build=None):
    build = build or root / "build/dev"
    if not (build / "compile_commands.json").exists():
        return ["build/dev/compile_commands.json is missing; configure first"]
    tidy = Tidy(root, build / "tidy", root / ".clang-tidy")
    return check_groups(tidy, groups_of(root, build), shared_memory())
