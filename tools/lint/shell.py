"""Shell scripts parse and pass shellcheck."""

import subprocess


def is_shell(root, file):
    if file.suffix == ".sh":
        return True
    if file.suffix:
        return False
    with open(root / file, "rb") as stream:
        return stream.readline(80).rstrip() in (b"#!/bin/bash", b"#!/bin/sh", b"#!/usr/bin/env bash")


def check(root, files):
    scripts = [str(file) for file in files if is_shell(root, file)]
    faults = []
    for script in scripts:
        parsed = subprocess.run(["bash", "-n", script], cwd=root, text=True, capture_output=True, check=False)
        faults += parsed.stderr.splitlines()
    if scripts and not faults:
        checked = subprocess.run(
            ["shellcheck", "--external-sources", "--format=gcc", *scripts],
            cwd=root, text=True, capture_output=True, check=False,
        )
        faults += (checked.stdout + checked.stderr).splitlines()
    return faults
