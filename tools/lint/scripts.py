"""Page scripts pass ESLint."""

import subprocess


def check(root, files):
    names = [str(file) for file in files if file.suffix in (".js", ".mjs", ".cjs")]
    if not names:
        return []
    result = subprocess.run(
        ["node_modules/.bin/eslint", "--max-warnings=0", "--no-warn-ignored", *names],
        cwd=root, text=True, capture_output=True, check=False,
    )
    return (result.stdout + result.stderr).splitlines() if result.returncode else []
