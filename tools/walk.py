#!/usr/bin/env python3
"""Works in the viewer at random, and looks whether it stands it: tools/walk.py SEED SECONDS [VIEWER [RIG]]

Clicks, keys, drags, dialogs, file dialogs, modes, cables, refusals and slow commands, the same ones for the same seed.
Ends with 1 and what was wrong if the program has ended, a script failed, memory grew, or a box of the panel shows
another value than its getter gives once all is quiet. Runs on the display that it is given (tools/headless.sh).
"""
import pathlib
import random
import subprocess
import sys
import tempfile
import time

from console_client import Console, Refused

ROOT = pathlib.Path(__file__).resolve().parent.parent
CONTROLS = """
(function () {
    var found = [];
    $('button, input, select, textarea, [role=option], [role=slider], .CaptionCont, .opt, a').each(function (i) {
        if ($(this).is(':visible') && !this.disabled && !$(this).closest('.disabled').length) {
            $(this).attr('data-walk', i);
            found.push([i, this.tagName, $(this).attr('role') || this.type || '']);
        }
    });
    return found;
})()
"""
# Boxes and what their getters give: selector of the box, getter, key of the value.
VALUES = [
    ("#livecontrol_shutterspeed", "getShutterSpeedSettings", "SelectValue"),
    ("#livecontrol_framerate", "getFrameRateSettings", "SelectValue"),
    ("#livecontrol_resolution", "getResolutionSettings", "SelectValue"),
]
TEXTS = ["1", "0", "-5", "1e300", "999", "abc", "<b>x</b>", "日本語", "../up", "192.168.0.7", " ", "a" * 200]
KEYS = ["Tab", "Shift+Tab", "Return", "Space", "Up", "Down", "Left", "Right", "Home", "End", "Escape", "PgUp", "PgDown",
        "Del", "Backspace", "F2", "Ctrl+A"]
IMAGE_KEYS = ["F5", "F6", "F7", "Ctrl+1", "Ctrl+2", "Ctrl+3", "Left", "Right", "Space", "Ctrl+T", "Ctrl+G", "M"]
MENU = ["savedView", "editInfo", "jobs", "settings", "searchSettings", "shortcuts", "about", "undo", "redo", "tile", "single",
        "dialog:save", "dialog:open", "dialog:snapshot", "dialog:convert", "rotateLeft", "flipA", "bin", "info", "style"]
GROWTH = 1.5     # of the memory, from the first quarter of the walk to its end
LAST_LINES = 30  # of what the viewer said before it ended
SLACK_MB = 150   # that a short walk may take beside that


class Walk:
    """One viewer, and what is done in it."""

    def __init__(self, seed, folder, program, console):
        self.random = random.Random(seed)
        self.folder = pathlib.Path(folder)
        self.program = program
        self.console = console
        self.done = 0
        self.refused = 0

    def attempt(self, method, **params):
        """What can't be done is no fault; gives None then."""
        try:
            return self.console(method, **params)
        except Refused:
            self.refused += 1
            return None

    def megabytes(self):
        for line in pathlib.Path(f"/proc/{self.program.pid}/status").read_text().splitlines():
            if line.startswith("VmRSS"):
                return int(line.split()[1]) // 1024
        return 0

    def modal(self):
        return [window for window in self.console("windows.list") if window["modal"]]

    def in_page(self, dialog):
        controls = self.attempt("page.eval", script=CONTROLS, dialog=dialog)
        if not controls:
            return
        index, tag, kind = self.random.choice(controls)
        selector = f"[data-walk={int(index)}]"
        if kind == "slider" and self.random.random() < 0.7:
            self.attempt("page.drag", selector=selector, dx=self.random.randint(-60, 60), dy=0, steps=5, dialog=dialog)
        elif tag in ("INPUT", "TEXTAREA") and kind not in ("checkbox", "radio") and self.random.random() < 0.7:
            self.attempt("page.type", selector=selector, text=self.random.choice(TEXTS), dialog=dialog)
            self.attempt("page.key", selector="", key=self.random.choice(["Return", "Tab", "Escape"]), dialog=dialog)
        else:
            modifiers = self.random.choice([[], [], [], ["ctrl"], ["shift"]])
            self.attempt("page.click", selector=selector, dialog=dialog, modifiers=modifiers)

    def in_dialog(self, window):
        choice = self.random.random()
        if "FileDialog" in window["class"]:
            path = self.random.choice([None, str(self.folder / f"walk{self.random.randint(0, 3)}")])
            if self.attempt("files.answer", path=path) is None:
                self.attempt("windows.close", title=window["title"])
        elif window["buttons"] and choice < 0.6:
            self.attempt("windows.press", button=self.random.choice(window["buttons"]))
        elif choice < 0.85:
            self.in_page(dialog=True)
        else:
            self.attempt("windows.close", title=window["title"])

    def on_image(self):
        if self.random.random() < 0.5:
            self.attempt("image.key", key=self.random.choice(IMAGE_KEYS))
            return
        for method in ("image.press", "image.move", "image.move", "image.release"):
            self.attempt(method, x=self.random.randint(0, 600), y=self.random.randint(0, 500))

    def at_camera(self):
        cameras = self.console("camera.list")
        if not cameras:
            return
        key = self.random.choice(cameras)["key"]
        action = self.random.choice(["plug", "plug", "unplug", "delay", "refuse"])
        if action == "delay":
            self.attempt("camera.delay", key=key, ms=self.random.choice([0, 0, 5, 100, 400]))
        elif action == "refuse":
            self.attempt("camera.refuse", key=key, times=1, reason="busy")
        elif action == "unplug":
            self.attempt("camera.unplug", key=key, duringNext=self.random.random() < 0.5)
        else:
            self.attempt("camera.plug", key=key)

    def step(self):
        self.done += 1
        modal = self.modal()
        if modal:
            self.in_dialog(modal[-1])
            return
        choice = self.random.random()
        if choice < 0.55:
            self.in_page(dialog=False)
        elif choice < 0.7:
            self.attempt("page.key", selector="", key=self.random.choice(KEYS))
        elif choice < 0.85:
            self.on_image()
        elif choice < 0.92:
            self.at_camera()
        else:
            self.attempt("windows.choose", action=self.random.choice(MENU))

    def calm(self):
        """Closes what is open, takes away what was made difficult, and goes back to the live panel."""
        for camera in self.console("camera.list"):
            self.attempt("camera.delay", key=camera["key"], ms=0)
            self.attempt("camera.refuse", key=camera["key"], times=0)
            self.attempt("camera.plug", key=camera["key"])
        for _ in range(100):
            modal = self.modal()
            if not modal:
                break
            if self.attempt("windows.close", title=modal[-1]["title"]) is None and modal[-1]["buttons"]:
                self.attempt("windows.press", button=modal[-1]["buttons"][0])
            time.sleep(0.05)
        self.attempt("image.key", key="F7")
        self.attempt("image.key", key="Ctrl+1")
        self.attempt("page.wait", script="window.livecontrol && livecontrol.isLiveMode()", timeoutMs=10000)
        # An update reaches the page that shows.
        self.attempt("page.eval", script="livecontrol_obj.changePage(0); livecontrol.updateCameras(); livecontrol.updateUI()")

    def lasting_differences(self):
        """What is not on its way any more."""
        for _ in range(20):
            found = self.differences()
            if not found:
                break
            time.sleep(0.5)
        return found

    def differences(self):
        """Boxes that show another value than their getters give."""
        found = []
        for box, getter, name in VALUES:
            script = f"""(function () {{
                if (!window.livecontrol || !$('{box}').is(':visible') && !$('{box}').length) {{ return ''; }}
                var text = livecontrol.{getter}(), settings = text ? JSON.parse(text) : null;
                var shown = $('{box}').val();
                return settings && settings.Selected && String(shown) !== String(settings.{name})
                    ? '{box} shows ' + shown + ', {getter} gives ' + settings.{name} : '';
            }})()"""
            text = self.attempt("page.eval", script=script)
            if text:
                found.append(text)
        return found


def walk(seed, seconds, viewer, rig):
    """Gives what was wrong, a line each."""
    with tempfile.TemporaryDirectory() as folder:
        said = pathlib.Path(folder) / "said.txt"
        with said.open("wb") as out:
            program = subprocess.Popen([viewer, "--console", f"{folder}/console", "--settings", folder, "--rig", rig],
                                       cwd=folder, stdout=out, stderr=out)
        one = None
        try:
            console = Console(f"{folder}/console")
            console("page.wait", script="$('#panels section:visible').length", timeoutMs=60000)
            one = Walk(seed, folder, program, console)
            begin = time.monotonic()
            early = one.megabytes()
            while time.monotonic() - begin < seconds:
                one.step()
                if time.monotonic() - begin < seconds / 4:
                    early = max(early, one.megabytes())
            one.calm()
            faults = [f"script error: {error}" for error in console("page.errors")]
            faults += one.lasting_differences()
            late = one.megabytes()
            if late > early * GROWTH + SLACK_MB:
                faults.append(f"memory grew from {early} to {late} MB")
            print(f"seed {seed}: {one.done} steps, {one.refused} refused, {early} to {late} MB", file=sys.stderr)
            return faults
        except (ConnectionError, OSError) as error:
            steps = one.done if one else 0
            last = said.read_text(errors="replace").splitlines()[-LAST_LINES:]
            return [f"after {steps} steps: {error} (the viewer's code: {program.poll()})", *last]
        finally:
            program.terminate()
            try:
                program.wait(20)
            except subprocess.TimeoutExpired:
                program.kill()


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__.splitlines()[0])
    viewer = sys.argv[3] if len(sys.argv) > 3 else str(ROOT / "build/dev/bin/zelviewer")
    rig = sys.argv[4] if len(sys.argv) > 4 else str(ROOT / "rigs/default.json")
    faults = walk(int(sys.argv[1]), float(sys.argv[2]), viewer, rig)
    for fault in faults:
        print(fault)
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
