"""The sum at the end of ./test is the truth, above all when something went wrong halfway."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

QT_GOOD = """PASS   : tst_A::initTestCase()
PASS   : tst_A::one()
PASS   : tst_A::two(first row)
PASS   : tst_A::cleanupTestCase()
Totals: 4 passed, 0 failed, 0 skipped, 0 blacklisted, 1ms
"""
QT_BAD = """PASS   : tst_A::one()
FAIL!  : tst_A::two(second row) Compared values are not the same
   Loc: [tst_a.cpp(3)]
SKIP   : tst_A::three() no screen
"""


def junit(*cases):
    inner = "".join(
        f'<testcase name="{name}" status="{status}"><system-out>{output}</system-out></testcase>'
        for name, status, output in cases
    )
    return f"<testsuite>{inner}</testsuite>"


class Tally(unittest.TestCase):
    def sum_of(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                Path(folder, name).write_text(text)
            result = subprocess.run(
                [sys.executable, ROOT / "tools/tally.py", folder], text=True, capture_output=True, check=False
            )
        self.assertEqual(result.stderr, "")
        return result.stdout.splitlines()[-1], result.returncode

    def test_all_good(self):
        self.assertEqual(self.sum_of({
            "lint.txt": "PASS arrows\nPASS tidy\n",
            "pages.tap": "# pass 5\n# fail 0\n", "pages.status": "0",
            "ctest.xml": junit(("tst_a", "run", QT_GOOD), ("exports", "run", "fine")), "ctest.status": "0",
        }), ("10 passed, 0 failed", 0))

    def test_each_kind_of_failure_counts(self):
        for files, line in [
            ({"build.failed": ""}, "0 passed, 1 failed"),
            ({"lint.txt": "PASS arrows\nFAIL tidy\n"}, "1 passed, 1 failed"),
            ({"fuzz.txt": "PASS fuzz_a\nFAIL fuzz_b\n"}, "1 passed, 1 failed"),
            ({"threads.txt": "PASS tst_a\n", "threads.status": "1"}, "1 passed, 1 failed"),
            ({"pages.tap": "# pass 5\n# fail 2\n", "pages.status": "1"}, "5 passed, 2 failed"),
            ({"ctest.xml": junit(("tst_a", "fail", QT_BAD)), "ctest.status": "8"}, "1 passed, 1 failed"),
        ]:
            with self.subTest(files=files):
                self.assertEqual(self.sum_of(files), (line, 1))

    def test_what_broke_without_a_failed_test(self):
        for files, line in [
            # A crash after the last good function, or before the first.
            ({"ctest.xml": junit(("tst_a", "fail", QT_GOOD)), "ctest.status": "8"}, "2 passed, 1 failed"),
            ({"ctest.xml": junit(("tst_a", "fail", "")), "ctest.status": "8"}, "0 passed, 1 failed"),
            ({"ctest.xml": junit(("tst_a", "notrun", "")), "ctest.status": "8"}, "0 passed, 1 failed"),
            # The step itself.
            ({"lint.txt": "PASS arrows\n", "ctest.status": "1"}, "1 passed, 1 failed"),
            ({"lint.txt": "PASS arrows\n", "lint.status": "1"}, "1 passed, 1 failed"),
            ({"lint.status": "1"}, "0 passed, 1 failed"),
            ({"pages.tap": "nonsense", "pages.status": "7"}, "0 passed, 1 failed"),
            ({"pages.status": "127"}, "0 passed, 1 failed"),
        ]:
            with self.subTest(files=files):
                self.assertEqual(self.sum_of(files), (line, 1))

    def test_nothing_is_no_success(self):
        self.assertEqual(self.sum_of({}), ("0 passed, 0 failed", 1))


if __name__ == "__main__":
    unittest.main()
