"""The files that the checks look at."""

import os
from pathlib import Path

# A corpus holds whatever bytes a fuzzer is to start from.
SKIPPED = {".git", "build", "node_modules", "__pycache__", ".cache", "corpus"}
BINARY = {".png", ".ico", ".gif", ".jpg", ".qm", ".ttf"}


def sources(root):
    """All text files of the repository under root, sorted, as paths relative to it."""
    found = []
    for folder, folders, names in os.walk(root):
        folders[:] = sorted(name for name in folders if name not in SKIPPED)
        for name in names:
            path = Path(folder, name)
            if path.suffix not in BINARY and not path.is_symlink():
                found.append(path.relative_to(root))
    return sorted(found)


def cpp_files(files):
    return [file for file in files if file.suffix in (".cpp", ".h")]
