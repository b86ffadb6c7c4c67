#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs a test program, and again when Wine itself gave up.

Two faults of Wine 8.0 end a program in rare moments (one in some hundred thousand random inputs): it
holds its user lock too long, notices, and ends the process by an assertion of its own; and its rich edit
control crashes on an arrow key at the end of its text, as it does in a program of twenty lines.  Neither
says anything about the program, so it starts anew; every other ending is the program's and stands.
"""

import subprocess
import sys

RUNS = 3


class WineFault:
    """Looks for the traces of a fault of Wine's in the lines of an output."""

    def __init__(self):
        self.seen = False
        self._place_follows = False  # the crash guard tells next where the crash was

    def look_at(self, line):
        asserted = b"dlls/win32u/" in line and b"Assertion" in line
        crashed = self._place_follows and b"RICHED20.DLL + " in line
        self._place_follows = b"The test program has crashed: " in line
        self.seen = self.seen or asserted or crashed


def run(command):
    """Runs the command and passes its output on; its status, and whether Wine gave up."""
    fault = WineFault()
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT) as program:
        for line in program.stdout:
            sys.stdout.buffer.write(line)
            sys.stdout.buffer.flush()
            fault.look_at(line)
    return program.returncode, fault.seen


def main():
    for attempt in range(RUNS):
        if attempt > 0:
            print("Wine gave up by a fault of its own: once more", flush=True)
        status, wine_gave_up = run(sys.argv[1:])
        if status == 0 or not wine_gave_up:
            break
    return status


if __name__ == "__main__":
    sys.exit(main())
