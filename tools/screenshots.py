#!/usr/bin/env python3
"""Takes the pictures of the documentation with the viewer itself: ./tools/headless.sh tools/screenshots.py

Starts the built viewer on the display that it is given, drives it through its console and writes to docs/.
"""
import contextlib
import pathlib
import subprocess
import tempfile
import time

from console_client import Console

ROOT = pathlib.Path(__file__).resolve().parent.parent
VIEWER = ROOT / "build/dev/bin/zelviewer"


@contextlib.contextmanager
def viewer(style, language):
    """The console of a viewer with fresh settings, once its panel shows."""
    with tempfile.TemporaryDirectory() as folder:
        program = subprocess.Popen([VIEWER, "--console", f"{folder}/console", "--settings", folder, "--style", style,
                                    "--language", language])
        console = Console(f"{folder}/console")
        console("page.wait", script="$('#panels section:visible').length", timeoutMs=15000)
        yield console
        console("app.quit")
        program.wait(20)


def take(style, language):
    """Pictures of the window and the panel in one style and language."""
    with viewer(style, language) as console:
        time.sleep(1)  # the picture moves; the first frames are there now
        name = f"{style}-{language}"
        console("screenshot", what="window", path=str(ROOT / f"docs/window-{name}.png"))
        console("page.click", selector="#livecontrol_open_devicesetting")
        time.sleep(0.3)
        console("screenshot", what="panel", path=str(ROOT / f"docs/devices-{name}.png"))
        console("page.click", selector="#livecontrol_devicesetting_closebutton")
        console("page.eval", script="livecontrol_obj.startHWImageTrigger(), livecontrol_obj.changePage(4), 1")
        console("page.click", selector="#livecontrol_hwimage_trigger_on")
        console("page.click", selector="#livecontrol_hwimage_trigger_histogram_on")
        time.sleep(1)
        console("screenshot", what="window", path=str(ROOT / f"docs/image-trigger-{name}.png"))


def take_dialog(style, language):
    """The dialog of the comment, with one."""
    with viewer(style, language) as console:
        console("page.click", selector="#livecontrol_editCommentButton")
        console("page.wait", script="jQuery('#comment').is(':focus')", dialog=True, timeoutMs=15000)
        console("page.type", selector="#comment", text="Drop test 12, 3 m, second sample", dialog=True)
        time.sleep(1)  # it fades in
        console("screenshot", what="dialog", path=str(ROOT / f"docs/comment-{style}-{language}.png"))
        console("page.click", selector="#cancel_btn", dialog=True)


def take_info(style, language):
    """The dialog on the information over the image."""
    with viewer(style, language) as console:
        console("page.click", selector="#livecontrol_editInfoButton")
        console("page.wait", script="$('.ei-items li').length", dialog=True, timeoutMs=15000)
        time.sleep(1)
        console("screenshot", what="dialog", path=str(ROOT / f"docs/info-{style}-{language}.png"))
        console("page.click", selector="#cancel_btn", dialog=True)


def take_saved_view(style, language):
    """The dialog on what stands round a saved picture, of a camera with a comment."""
    with viewer(style, language) as console:
        console("page.click", selector="#livecontrol_editCommentButton")
        console("page.wait", script="jQuery('#comment').is(':focus')", dialog=True, timeoutMs=15000)
        console("page.type", selector="#comment", text="Drop test 12, 3 m, second sample", dialog=True)
        console("page.click", selector="#ok_btn", dialog=True)
        while any(window["modal"] for window in console("windows.list")):
            time.sleep(0.1)
        console("windows.choose", action="savedView")
        console("page.wait", script="$('#preview img:visible').length", dialog=True, timeoutMs=15000)
        time.sleep(1)
        console("screenshot", what="dialog", path=str(ROOT / f"docs/saved-view-{style}-{language}.png"))
        console("page.click", selector="#cancel_btn", dialog=True)


def take_page(style, language):
    """The whole of page 0, unfolded, as wide as a narrow panel."""
    with viewer(style, language) as console:
        console("page.eval", script="livecontrol.setTriggerMode(7, 100, 100, 50, 200, 1), "
                                    "livecontrol.setDSShutterValue(30), livecontrol_obj.update(), 1")
        time.sleep(0.5)
        console("page.eval", script="$('#livecontrol_page_list .switch-expand:visible').not('.expanded')"
                                    ".each(function () { $(this).trigger('click'); }), 1")
        time.sleep(0.5)
        height = console("page.eval", script="$('#panels').height()")
        console("screenshot", what="panel", width=300, height=int(height) + 60,
                path=str(ROOT / f"docs/page0-{style}-{language}.png"))


def main():
    for style, language in (("dark", "en"), ("light", "ja")):
        take(style, language)
        take_dialog(style, language)
        take_info(style, language)
        take_saved_view(style, language)
    for style in ("dark", "light"):
        for language in ("en", "ja"):
            take_page(style, language)


if __name__ == "__main__":
    main()
