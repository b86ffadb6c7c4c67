#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that the folders depend on each other only as the architecture allows.

For every C++ source: the folders named by its #include "..." lines must be allowed for the folder
the source is in, the framework is included by its umbrella headers only, and what uses it contains
no conditional on which framework it is compiled against.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent

# Folder -> folders whose headers it may include besides its own.
ALLOWED = {
    "framework": set(),
    "draw": set(),
    "controls": {"draw"},
    "menus": {"draw"},
    "image": set(),
    "diag": set(),
    "decorations": {"image"},
    "automation": {"draw"},
    "imageinfo": {"image"},
}
# These use whatever they show, measure or test.
EVERYTHING = {"gallery", "samples", "benchmarks", "fuzz", "tests"}
# The framework's umbrella headers are MFC's, so these build against either.
USES_FRAMEWORK = {"draw", "controls", "menus", "decorations", "automation", "gallery", "samples",
                  "benchmarks"}

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
UMBRELLA = re.compile(r"^(afx\w*|atl\w*)\.h$")
CONDITIONAL = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b(.*)")
# Anything only one of the two frameworks, or only one of their compilers, defines.
FRAMEWORK_MACRO = re.compile(r"_MFC_VER|_AFX|_ATL_VER|\bAFX_|TINTKIT_(FRAMEWORK|MFC)|_MSC_VER|__MINGW")


def include_fault(folder, bracket, name):
    """What is wrong with including `name` from a source in `folder`, or None."""
    first = name.split("/")[0]
    if UMBRELLA.match(name):
        if folder in USES_FRAMEWORK | {"framework", "tests"}:
            return None
        return f"{folder}/ stands alone: it may not include the framework's {name}"
    if first in ("afx", "framework"):
        if folder in ("framework", "tests"):
            return None
        return f"{name} is internal to the stand-in framework: include <afx*.h>"
    known = first in ALLOWED or first in EVERYTHING
    if bracket == "<" or not known or first == folder or folder in EVERYTHING:
        return None
    if first not in ALLOWED[folder]:
        return f"{folder}/ may not include {name}: the arrows point the other way"
    return None


def faults_in(path, folder):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        include = INCLUDE.match(line)
        if include:
            fault = include_fault(folder, *include.groups())
            if fault:
                yield number, fault
        conditional = CONDITIONAL.match(line)
        if conditional and folder in USES_FRAMEWORK and FRAMEWORK_MACRO.search(conditional.group(1)):
            yield number, "what differs by framework or compiler belongs in framework/"


def main():
    checked = failed = 0
    for folder in sorted(set(ALLOWED) | EVERYTHING):
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp", ".rc"):
                continue
            checked += 1
            for number, fault in faults_in(path, folder):
                failed += 1
                print(f"{path.relative_to(ROOT)}:{number}: {fault}")
    print(f"{checked} files checked, {failed} faults")
    return 1 if failed or checked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
