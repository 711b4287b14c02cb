"""exports.py NM LIBRARY: the library's only exported symbol is makeHTMLPlugin, under its plain C name, and it
stays in the memory of the program that has loaded it."""

import subprocess
import sys

EXPECTED = ["makeHTMLPlugin"]


def exports(nm, library):
    """Names and kinds of the defined dynamic symbols."""
    listing = subprocess.run(
        [nm, "--dynamic", "--defined-only", library], text=True, capture_output=True, check=True
    ).stdout
    return [line.split()[-2:] for line in listing.splitlines()]


def main():
    symbols = exports(*sys.argv[1:])
    flags = subprocess.run(["readelf", "--dynamic", sys.argv[2]], text=True, capture_output=True, check=True).stdout
    if "NODELETE" not in flags:  # a host may keep texts that lie in the library
        print("can be unloaded")
        return 1
    print("exported:", *(f"{kind} {name}" for kind, name in symbols))
    # T: code. A weak or a data symbol of that name would not be the function.
    return 0 if symbols == [["T", name] for name in EXPECTED] else 1


if __name__ == "__main__":
    sys.exit(main())
