"""Each check of tools/lint finds the fault that it is there for, and lets good code pass."""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools/lint"))

# pylint: disable=wrong-import-position
import arrows
import layout
import scripts
import shell
import strays
import tidy
from sources import sources

FLAGS = ["-std=c++17"]


class Folder(unittest.TestCase):
    """A test with a small repository of its own."""

    def setUp(self):
        self.root = Path(tempfile.mkdtemp(dir=self.parent()))
        self.addCleanup(shutil.rmtree, self.root)

    def parent(self):
        return None

    def write(self, files):
        for name, text in files.items():
            path = self.root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)

    def faults(self, check, files):
        self.write(files)
        return check(self.root, sources(self.root))


class Arrows(Folder):
    def arrow(self, source, target):
        self.write({target: "", source: f'#include "{target}"\n'})
        return arrows.check(self.root, [Path(source)])

    def test_up_is_refused(self):
        for source, target in [
            ("livecontrol/interface/A.h", "livecontrol/foundation/B.h"),
            ("livecontrol/foundation/A.h", "livecontrol/bridge/B.h"),
            ("livecontrol/live/A.cpp", "livecontrol/plugin/PLG_livecontrol.h"),
            ("livecontrol/devices/A.cpp", "livecontrol/live/B.h"),
            ("livecontrol/devices/A.cpp", "livecontrol/settings/B.h"),
            ("livecontrol/web/A.cpp", "viewer/host/B.h"),
            ("viewer/cameras/A.cpp", "livecontrol/interface/B.h"),
            ("viewer/cameras/A.cpp", "simulator/device/B.h"),
            ("viewer/documents/A.cpp", "simulator/device/B.h"),
            ("viewer/app/A.cpp", "simulator/device/B.h"),
            ("simulator/device/A.cpp", "viewer/documents/B.h"),
            ("viewer/host/A.cpp", "tests/support/B.h"),
            ("viewer/host/A.cpp", "livecontrol/bridge/B.h"),
            ("viewer/host/A.cpp", "livecontrol/live/B.h"),
            ("tests/smallhost/A.cpp", "livecontrol/foundation/B.h"),
            ("tests/smallhost/A.cpp", "viewer/app/B.h"),
        ]:
            with self.subTest(source=source, target=target):
                self.assertEqual(len(self.arrow(source, target)), 1)

    def test_down_is_allowed(self):
        for source, target in [
            ("livecontrol/plugin/A.cpp", "livecontrol/live/B.h"),
            ("livecontrol/live/A.cpp", "livecontrol/interface/B.h"),
            ("livecontrol/live/A.cpp", "livecontrol/live/B.h"),
            ("livecontrol/live/A.cpp", "livecontrol/devices/B.h"),
            ("livecontrol/bridge/A.cpp", "livecontrol/interface/PLG_Interface.h"),
            ("viewer/host/A.cpp", "livecontrol/interface/B.h"),
            ("viewer/host/A.cpp", "livecontrol/devices/GUI_EditDeviceDialog.h"),
            ("tests/smallhost/A.cpp", "livecontrol/interface/B.h"),
            ("viewer/host/A.cpp", "viewer/cameras/B.h"),
            ("viewer/app/panes/RigDock.cpp", "simulator/device/B.h"),
            ("simulator/device/A.cpp", "viewer/cameras/B.h"),
            ("tests/panel/A.cpp", "simulator/device/B.h"),
            ("tests/panel/A.cpp", "viewer/app/B.h"),
        ]:
            with self.subTest(source=source, target=target):
                self.assertEqual(self.arrow(source, target), [])

    def test_paths_start_at_the_root(self):
        beside = {"viewer/app/B.h": "", "viewer/app/A.cpp": '#include "B.h"\n'}
        self.assertEqual(len(self.faults(arrows.check, beside)), 1)

    def test_cameras_do_without_widgets(self):
        for header, count in [("QWidget", 1), ("QtWidgets/QLabel", 1), ("QSpinBox", 1), ("QWebFrame", 1), ("QImage", 0)]:
            with self.subTest(header=header):
                self.assertEqual(len(self.faults(arrows.check, {"viewer/cameras/A.h": f"#include <{header}>\n"})), count)


class Strays(Folder):
    def test_each_is_found(self):
        for text in ["// TO" + "DO: later\n", "<" * 7 + " ours\n", "cd /ho" + "me/me\n", "int a; \n", "a\r\n", "a", "a\n" * 401]:
            with self.subTest(text=text[:20]):
                self.assertNotEqual(self.faults(strays.check, {"a.cpp": text}), [])
        (self.root / "a.cpp").write_bytes(b"\xff\n")
        self.assertNotEqual(strays.check(self.root, [Path("a.cpp")]), [])

    def test_good_text_passes(self):
        self.assertEqual(self.faults(strays.check, {"a.cpp": "int todoList;\n// see https://example.org/home/x\n"}), [])


class Tools(Folder):
    """The checks that call a tool, with the settings of this repository."""

    def parent(self):
        # ESLint looks only at files below its settings.
        folder = ROOT / "build"
        folder.mkdir(exist_ok=True)
        return folder

    def test_layout(self):
        shutil.copy(ROOT / ".clang-format", self.root)
        self.assertEqual(len(self.faults(layout.check, {"a.cpp": "int  a ;\n", "b.cpp": "int b;\n"})), 1)

    def test_shell(self):
        self.assertEqual(self.faults(shell.check, {"good.sh": '#!/bin/bash\necho "$1"\n'}), [])
        self.assertNotEqual(self.faults(shell.check, {"good.sh": '#!/bin/bash\nrm $1\n'}), [])
        self.assertNotEqual(self.faults(shell.check, {"good.sh": "#!/bin/bash\nif\n"}), [])
        self.write({"good.sh": "", "named": "#!/bin/bash\nfi\n"})
        self.assertNotEqual(shell.check(self.root, [Path("named")]), [])

    def test_scripts(self):
        for text, is_good in [
            ("export function f(a) { return a.map((b) => b); }\n", True),
            ("export function f(a) { return a.padStart(2); }\n", False),
            ("export function f(a) { return Object.values(a); }\n", False),
            ("export function f(event) { return event.key; }\n", False),
            ("export function f(a) { const b = 1; return a; }\n", False),
            ("export function f(a) { a.innerHTML = '<b>'; }\n", False),
            ("export function f( {\n", False),
        ]:
            with self.subTest(text=text):
                result = subprocess.run(
                    ["node_modules/.bin/eslint", "--stdin", "--stdin-filename", "livecontrol/resources/live/sample.js"],
                    cwd=ROOT, input=text, text=True, capture_output=True, check=False,
                )
                self.assertEqual(result.returncode, 0 if is_good else 1, result.stdout + result.stderr)

    def test_scripts_passes_on_what_eslint_says(self):
        (self.root / "node_modules").symlink_to(ROOT / "node_modules")
        shutil.copy(ROOT / "eslint.config.js", self.root)
        self.assertNotEqual(scripts.check(self.root, [Path("missing.js")]), [])


class Tidy(Folder):
    BAD_NAME = "class C {\n    int count = 0;\n\npublic:\n    int get() { return count; }\n};\n"

    def tidy(self):
        return tidy.Tidy(self.root, self.root / "work", ROOT / ".clang-tidy")

    def check(self, *names):
        memory = tidy.Memory(self.root / "work/passed")
        return tidy.check_groups(self.tidy(), [([self.root / name for name in names], [f"-I{self.root}", *FLAGS])], memory)

    def test_faults_in_file_and_header(self):
        self.write({
            "viewer/a.cpp": '#include "viewer/a.h"\nint useOf(std::string) { return 1; }\n',
            "viewer/a.h": f"#include <string>\n{self.BAD_NAME}",
            "viewer/b.cpp": "int good() { return 1; }\n",
        })
        faults = self.check("viewer/a.cpp", "viewer/b.cpp")
        self.assertEqual(len(faults), 2, faults)
        self.assertTrue(any("a.cpp:2" in fault and "unnecessary-value-param" in fault for fault in faults))
        self.assertTrue(any("a.h:3" in fault and "identifier-naming" in fault for fault in faults))

    def test_files_that_do_not_go_together(self):
        same = "namespace {\nconstexpr int kOne = 1;\nint helper() { return kOne; }\n} // namespace\n"
        self.write({"viewer/a.cpp": same, "viewer/b.cpp": same, "viewer/c.cpp": same.replace("helper", "other")})
        files = [self.root / "viewer" / name for name in ("a.cpp", "b.cpp", "c.cpp")]
        self.assertEqual(tidy.portions(files), [[files[0], files[2]], [files[1]]])
        self.assertEqual(self.tidy().run([files[0], files[2]], FLAGS), [])

    def test_files_that_do_not_go_together_at_second_sight(self):
        same = "namespace n {\nint helper() { return 1; }\n} // namespace n\n"
        self.write({"viewer/a.cpp": same, "viewer/b.cpp": same + self.BAD_NAME})
        faults = self.check("viewer/a.cpp", "viewer/b.cpp")
        self.assertEqual(len(faults), 1, faults)
        self.assertIn("b.cpp:5", faults[0])

    def test_prefixes_of_the_layers(self):
        self.write({"viewer/a.cpp": "class PLG_thing {};\nclass XYZ_thing {};\n"})
        faults = self.check("viewer/a.cpp")
        self.assertEqual(len(faults), 1, faults)
        self.assertIn("XYZ_thing", faults[0])

    def test_a_file_that_does_not_compile(self):
        self.write({"viewer/a.cpp": "int f( {\n"})
        self.assertNotEqual(self.check("viewer/a.cpp"), [])

    def test_memory_holds_until_a_header_changes(self):
        self.write({"viewer/a.cpp": '#include "viewer/a.h"\n', "viewer/a.h": "int good();\n"})
        self.assertEqual(self.check("viewer/a.cpp"), [])
        # Nothing is run for a file that is known to be good.
        known = self.tidy()
        known.run = lambda *_: self.fail("checked again")
        flags = [f"-I{self.root}", *FLAGS]
        tidy.check_groups(known, [([self.root / "viewer/a.cpp"], flags)], tidy.Memory(self.root / "work/passed"))
        self.write({"viewer/a.h": self.BAD_NAME})
        self.assertEqual(len(self.check("viewer/a.cpp")), 1)
        self.assertEqual(len(self.check("viewer/a.cpp")), 1)


if __name__ == "__main__":
    unittest.main()
