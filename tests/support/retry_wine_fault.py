#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs a test program, and again when Wine itself gave up.

Wine 8.0 holds its user lock too long in rare moments (a few in a hundred thousand inputs), notices,
and ends the process by an assertion of its own.  That says nothing about the program, so it starts
anew; every other ending is the program's and stands.
"""

import subprocess
import sys

WINES_OWN = b"dlls/win32u/"
RUNS = 3


def run(command):
    """Runs the command and passes its output on; its status, and whether Wine asserted."""
    faulted = False
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT) as program:
        for line in program.stdout:
            sys.stdout.buffer.write(line)
            sys.stdout.buffer.flush()
            faulted = faulted or (WINES_OWN in line and b"Assertion" in line)
    return program.returncode, faulted


def main():
    status = 1
    for _ in range(RUNS):
        status, faulted = run(sys.argv[1:])
        if status == 0 or not faulted:
            break
        print("Wine asserted within itself: once more", flush=True)
    return status


if __name__ == "__main__":
    sys.exit(main())
