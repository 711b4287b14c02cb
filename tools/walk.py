#!/usr/bin/env python3
"""Works in the viewer at random, and looks whether it stands it: tools/walk.py SEED SECONDS [VIEWER [RIG]]

Clicks, keys, drags, dialogs, file dialogs, modes, cables, refusals and slow commands, the same ones for the same seed.
Ends with 1 and what was wrong if the program has ended, a script failed, memory grew, or a box of the panel shows
another value than its getter gives once all is quiet. Runs on the display that it is given (tools/headless.sh).
Tells what was refused most, and with WALK_LOG=FILE in the environment keeps each call with its answer.
"""
import collections
import json
import os
import pathlib
import random
import re
import subprocess
import sys
import tempfile
import time

from console_client import Console, Refused

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Marks the first control that can be reached, from the given one on, round the page.
CONTROL = """
(function (from) {
    var all = $('button, input, select, textarea, label, [role=option], [role=slider], .CaptionCont, .opt, a');
    $('[data-walk]').removeAttr('data-walk');
    for (var i = 0; i < all.length; i += 1) {
        var found = all[(from + i) % all.length];
        if (!$(found).is(':visible') || $(found).closest(':disabled, .disabled, .ui-state-disabled, [aria-disabled=true]').length) {
            continue;
        }
        found.scrollIntoViewIfNeeded(true);
        var box = found.getBoundingClientRect();
        var top = document.elementFromPoint(box.left + box.width / 2, box.top + box.height / 2);
        if (top && found.contains(top)) {
            $(found).attr('data-walk', 1);
            return [found.tagName, $(found).attr('role') || found.type || ''];
        }
    }
    return null;
})"""
# Boxes and what their getters give: selector of the box, getter, key of the value.
VALUES = [
    ("#livecontrol_shutterspeed", "getShutterSpeedSettings", "SelectValue"),
    ("#livecontrol_framerate", "getFrameRateSettings", "SelectValue"),
    ("#livecontrol_resolution", "getResolutionSettings", "SelectValue"),
]
TEXTS = ["1", "0", "-5", "1e300", "999", "abc", "<b>x</b>", "日本語", "../up", "192.168.0.7", " ", "a" * 200]
KEYS = ["Tab", "Shift+Tab", "Return", "Space", "Up", "Down", "Left", "Right", "Home", "End", "Escape", "PgUp", "PgDown",
        "Del", "Backspace", "F2", "Ctrl+A"]
IMAGE_KEYS = ["Left", "Right", "Up", "Down", "Shift+Left", "Ctrl+Up", "Space", "M", "N", "Shift+N", "Home", "End"]
# The modes stand often enough that there is something to keep, to show and to save.
MENU = ["live", "live", "live", "memory", "file", "ready", "ready", "record", "record", "stop", "keep", "play",
        "savedView", "editInfo", "jobs", "settings", "searchSettings", "shortcuts", "about", "partition", "undo", "redo",
        "tile", "single", "cycle", "dialog:save", "dialog:open", "dialog:snapshot", "dialog:convert", "dialog:layout",
        "dialog:report", "dialog:storage", "save", "open", "support", "rotateLeft", "flipA", "flipB", "bin", "zoomIn",
        "zoomFit", "info", "style"]
LEAVE = ", ".join(f"{button}:visible" for button in (
    "#livecontrol_devicesetting_closebutton", "#livecontrol_variablesetting_cancelbutton",
    "[id^=livecontrol][id$=_cancel]"))  # of a page that is not the first
NUMBERS = re.compile(r"\d+")
MOST_REASONS = 12  # of refusals, told at the end
GROWTH = 1.5     # of the memory, from the first quarter of the walk to its end
FEW_CAMERAS = 3  # which are not deleted, or little would be left to do
LONGEST_WORK = 30  # seconds that a sign of work may stand
LONGEST_ANSWER = 120  # seconds
LONGEST_END = 30  # seconds from a signal to the end
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
        self.calls = 0
        self.begin = time.monotonic()
        log = os.environ.get("WALK_LOG")
        self.log = open(log, "w", buffering=1, encoding="utf-8") if log else None
        self.refusals = collections.Counter()

    def attempt(self, method, **params):
        """What can't be done is no fault; gives None then."""
        self.calls += 1
        try:
            result = self.console(method, **params)
            self.note(method, params, result)
            return result
        except Refused as refused:
            self.note(method, params, f"refused: {refused}")
            self.refusals[f"{method}: {NUMBERS.sub('#', str(refused))}"] += 1
            return None

    def note(self, method, params, result):
        if self.log:
            shown = json.dumps(params if method != "page.eval" else params | {"script": "..."}, ensure_ascii=False)
            self.log.write(f"{time.monotonic() - self.begin:.3f} {method} {shown}: {json.dumps(result, ensure_ascii=False)}\n")

    def megabytes(self):
        for line in pathlib.Path(f"/proc/{self.program.pid}/status").read_text().splitlines():
            if line.startswith("VmRSS"):
                return int(line.split()[1]) // 1024
        return 0

    def modal(self):
        """The modal windows, the front one first."""
        return [window for window in self.console("windows.list") if window["modal"]]

    def in_page(self, dialog):
        control = self.attempt("page.eval", script=f"{CONTROL}({self.random.randint(0, 999)})", dialog=dialog)
        if not control:
            return
        tag, kind = control
        selector = "[data-walk]"
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
        if "FileDialog" in window["class"] and not window["page"]:
            self.in_file_dialog(window, choice)
        elif window["page"] and choice < 0.85:
            self.in_page(dialog=True)
        elif window["buttons"] and choice < 0.85:
            buttons = window["buttons"]
            last_ones = "delete" in window["text"] and len(self.console("camera.list")) < FEW_CAMERAS
            self.attempt("windows.press", button=buttons[-1] if last_ones else self.random.choice(buttons))
        elif window["buttons"] or window["page"]:
            self.attempt("windows.close", title=window["title"])
        else:  # a sign that something is at work, which nobody can close
            self.bide(window)

    def in_file_dialog(self, window, choice):
        name = self.random.choice(["walk0", "walk1", "walk2", "said.txt", ""])
        if choice < 0.6:
            self.attempt("files.answer", path=str(self.folder / name))
        elif choice < 0.8:
            self.attempt("files.answer", path=None)
        else:
            self.attempt("windows.close", title=window["title"])

    def bide(self, window):
        """Waits as a user does for what is at work. One that stays is a fault."""
        name = window["title"] or window["text"] or window["class"]
        until = time.monotonic() + LONGEST_WORK
        while any(window == other for other in self.modal()):
            if time.monotonic() > until:
                raise TimeoutError(f"\"{name}\" has stayed for {LONGEST_WORK} s")
            time.sleep(0.05)

    def on_image(self):
        def at():
            return {"x": self.random.randint(0, 600), "y": self.random.randint(0, 500)}
        if self.attempt("image.move", pressed=False, **at()) is None:  # all cameras are off, or there is no recording
            self.choose()
        elif self.random.random() < 0.5:
            self.attempt("image.key", key=self.random.choice(IMAGE_KEYS))
        else:
            for method in ("image.press", "image.move", "image.move", "image.release"):
                self.attempt(method, **at())

    def choose(self):
        self.attempt("windows.choose", action=self.random.choice(MENU))

    def switch_on(self, key):
        self.attempt("camera.set", key=key, name="power", value=True)
        self.attempt("camera.plug", key=key)

    def at_camera(self):
        cameras = self.console("camera.list")
        if not cameras:
            return
        key = self.random.choice(cameras)["key"]
        action = self.random.choice(["on", "on", "on", "unplug", "delay", "refuse"])
        if action == "delay":
            self.attempt("camera.delay", key=key, ms=self.random.choice([0, 0, 0, 5, 100, 400]))
        elif action == "refuse":
            self.attempt("camera.refuse", key=key, times=1, reason="busy")
        elif action == "unplug":
            self.attempt("camera.unplug", key=key, duringNext=self.random.random() < 0.5)
        else:
            self.switch_on(key)

    def leave(self):
        self.attempt("page.eval", script=f"$({json.dumps(LEAVE)}).first().attr('data-walk', 1).length") \
            and self.attempt("page.click", selector="[data-walk]")

    def step(self):
        self.done += 1
        windows = self.console("windows.list")
        if windows and windows[0]["modal"]:
            self.in_dialog(windows[0])
            return
        choice = self.random.random()
        if any(window["class"] == "GUI_SelectBox" for window in windows) and choice < 0.8:
            self.in_page(dialog=True)
        elif choice < 0.52:
            self.in_page(dialog=False)
        elif choice < 0.55:
            self.leave()
        elif choice < 0.68:
            self.attempt("page.key", selector="", key=self.random.choice(KEYS))
        elif choice < 0.8:
            self.on_image()
        elif choice < 0.88:
            self.at_camera()
        else:
            self.choose()

    def calm(self):
        """Closes what is open, takes away what was made difficult, and goes back to the live panel."""
        self.close_all()
        for camera in self.console("camera.list"):
            self.attempt("camera.delay", key=camera["key"], ms=0)
            self.attempt("camera.refuse", key=camera["key"], times=0)
            self.switch_on(camera["key"])
        for action in ("stop", "live"):
            self.attempt("windows.choose", action=action)
            time.sleep(0.5)
            self.close_all()
        self.leave()
        self.attempt("page.wait", script="livecontrol.isLiveMode()", timeoutMs=10000)
        # An update reaches the page that shows.
        self.attempt("page.eval", script="livecontrol_obj.changePage(0); livecontrol.updateCameras(); livecontrol.updateUI()")

    def close_all(self):
        for _ in range(100):
            modal = self.modal()
            if not modal:
                return
            if self.attempt("windows.close", title=modal[0]["title"]) is None and modal[0]["buttons"]:
                self.attempt("windows.press", button=modal[0]["buttons"][0])
            time.sleep(0.1)
        raise TimeoutError(f"\"{modal[0]['title']}\" ({modal[0]['class']}) can't be closed")

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


def ended(program, seconds):
    """The program's code, None if it has not ended by then."""
    try:
        return program.wait(seconds)
    except subprocess.TimeoutExpired:
        return None


def walk(seed, seconds, viewer, rig):
    """Gives what was wrong, a line each."""
    with tempfile.TemporaryDirectory() as folder:
        said = pathlib.Path(folder) / "said.txt"
        with said.open("wb") as out:
            program = subprocess.Popen([viewer, "--console", f"{folder}/console", "--settings", folder, "--rig", rig],
                                       cwd=folder, stdout=out, stderr=out)
        one = None
        try:
            console = Console(f"{folder}/console", LONGEST_ANSWER)
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
            refused = one.refusals.total()
            print(f"seed {seed}: {one.done} steps, {one.calls} calls, {refused} refused, {early} to {late} MB", file=sys.stderr)
            for reason, times in one.refusals.most_common(MOST_REASONS):
                print(f"{times:8} {reason}", file=sys.stderr)
            program.terminate()
            if ended(program, LONGEST_END) != 0:
                faults.append(f"the viewer's code at its end: {program.returncode}")
            return faults
        except (ConnectionError, OSError) as error:
            steps = one.done if one else 0
            last = said.read_text(errors="replace").splitlines()[-LAST_LINES:]
            return [f"after {steps} steps: {error} (the viewer's code: {ended(program, 5)})", *last]
        finally:
            if ended(program, 0) is None:
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
