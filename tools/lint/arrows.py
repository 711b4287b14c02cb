"""Includes point down only: a room knows the rooms below it and no others."""

import re
from pathlib import Path

# From the bottom up. A file may include from its own room and from the layers below; rooms of one layer
# don't know each other.
PLUGIN = [
    ["livecontrol/interface"],
    ["livecontrol/foundation"],
    ["livecontrol/bridge"],
    ["livecontrol/web"],
    # What stands over the image is edited from all the others.
    ["livecontrol/overlays"],
    ["livecontrol/devices", "livecontrol/settings"],
    # A drive with a password asks for it by a dialog of the devices.
    ["livecontrol/storage"],
    # The live mediator derives from the one of the devices and opens dialogs of the others.
    ["livecontrol/live"],
    ["livecontrol/plugin"],
]
VIEWER = [
    ["viewer/calls", "viewer/cameras"],
    ["simulator", "viewer/recordings", "viewer/prefs", "viewer/messages"],
    ["viewer/export"],
    ["viewer/documents"],
    ["viewer/overlay"],
    ["viewer/views", "pagelib"],
    ["viewer/host"],
    ["viewer/console", "viewer/saving"],
    ["viewer/app"],
]
# The others know cameras by their interface alone.
KNOW_SIMULATOR = {
    "viewer/app/panes/RigCards.cpp",
    "viewer/app/panes/RigDock.cpp",
    "viewer/app/Viewer.cpp",  # makes the cameras
    "viewer/console/CameraMethods.cpp",
}
# Of the plug-in the viewer knows the interfaces, the tools of the foundation, and these: dialogs, lists and pages that a
# host creates, and how what is saved is called. A host of its own needs none of them, as tests/smallhost shows.
HOST_KNOWS = re.compile(
    r"livecontrol/(interface|foundation)/.*"
    r"|livecontrol/(devices|overlays/info|storage/dialogs|web)/GUI_\w+\.h"
    r"|livecontrol/(bridge|web|storage/dialogs|storage/cards)/JS_Mediator_\w+\.h"
    r"|livecontrol/storage/(ExportNaming|NamingPreferences|dialogs/DialogKind)\.h"
    r"|livecontrol/live/(BrightnessSettings|TriggerNames)\.h")
# These know everything and are known by nobody else.
OUTSIDE = ["tests", "bench", "fuzz"]
# What a room must not take from Qt, as a pattern on the header's name.
WIDGETS = r"Qt(Widgets|WebKit\w*|OpenGL)/.*|QWidget|Q\w*(Dialog|Box|Button|Layout|Window|Label|View|Menu|Action)" \
          r"|QApplication|QDesktopWidget|QWeb\w+|QOpenGLWidget|QPainter"
NO_QT = {
    # The view of a page is one of the engine's.
    "livecontrol/interface": r"Qt(Widgets|WebKit\w*|Network|Xml|OpenGL)/.*|QWeb(?!View$)\w+|Q\w*Dialog|QApplication",
    "viewer/cameras": WIDGETS,
    "viewer/recordings": WIDGETS,
    "viewer/export": WIDGETS,
    "simulator": WIDGETS,
}

# Where the build writes headers, under the paths by which they are included.
GENERATED = "build/dev/generated"

INCLUDE = re.compile(r'^\s*#\s*include\s+(["<])([^">]+)[">]', re.MULTILINE)
ROOMS = {room: (house, height) for house in (PLUGIN, VIEWER) for height, layer in enumerate(house) for room in layer}


def room_of(path):
    """The innermost room that a file lies in, its first folder for an outsider, or None."""
    text = str(path)
    inside = [room for room in ROOMS if text.startswith(room + "/")]
    if inside:
        return max(inside, key=len)
    return next((name for name in OUTSIDE if text.startswith(name + "/")), None)


def may_include(source, room, target):
    """Whether the file source of room may include from the room target."""
    if room == target or room in OUTSIDE:
        return True
    if target in OUTSIDE:
        return False
    if target == "simulator" and str(source) not in KNOW_SIMULATOR:
        return False
    house, height = ROOMS[room]
    target_house, target_height = ROOMS[target]
    if house is target_house:
        return target_height < height
    # The viewer may know the plug-in, but for what cameras are; never the other way round.
    return house is VIEWER and room not in ("viewer/cameras", "simulator")


def host_may_know(source, room, name):
    """Whether a file of a host may include `name`; true for every file that is none of a host."""
    if str(source).startswith("tests/smallhost/"):
        return name.startswith(("livecontrol/interface/", "pagelib/", "tests/smallhost/", "tests/support/"))
    is_host = room in ROOMS and ROOMS[room][0] is VIEWER
    return not is_host or not name.startswith("livecontrol/") or bool(HOST_KNOWS.fullmatch(name))


def faults_of(root, file, text):
    room = room_of(file)
    if room is None:
        return
    for match in INCLUDE.finditer(text):
        kind, name = match.groups()
        place = f"{file}:{text.count(chr(10), 0, match.start()) + 1}"
        if kind == "<":
            if room in NO_QT and re.fullmatch(NO_QT[room], name):
                yield f"{place}: {room} must do without <{name}>"
            continue
        if name.endswith(".moc"):
            continue
        if not (root / name).exists() and not (root / GENERATED / name).exists():
            yield f'{place}: "{name}" is not a path from the root of the repository'
            continue
        target = room_of(Path(name))
        if not host_may_know(file, room, name):
            yield f"{place}: a host must not know {name}"
        if target is not None and not may_include(file, room, target):
            yield f"{place}: {room} must not know {target} ({name})"


def check(root, files):
    return [
        fault
        for file in files
        if file.suffix in (".cpp", ".h")
        for fault in faults_of(root, file, (root / file).read_text(encoding="utf-8", errors="replace"))
    ]
