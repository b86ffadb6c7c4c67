#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that the folders depend on each other only as the architecture allows.

For every C++ source: the folders named by its #include "..." lines must be allowed for the folder
the source is in, the framework is included by its umbrella headers only and before <windows.h>, and
what uses it contains no conditional on which framework it is compiled against.
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


def includes_in_order(path, seen):
    """The <> headers that compiling `path` meets, in order, each file entered once."""
    if path in seen:
        return
    seen.add(path)
    for line in path.read_text(encoding="utf-8").splitlines():
        include = INCLUDE.match(line)
        if include and include.group(1) == "<":
            yield include.group(2)
        elif include:
            near = [base / include.group(2) for base in (path.parent, ROOT)]
            for found in [header for header in near if header.is_file()][:1]:
                yield from includes_in_order(found, seen)


def order_fault(path):
    """MFC's headers include <windows.h> themselves and refuse to compile where they find it included."""
    windows = False
    for name in includes_in_order(path, set()):
        if UMBRELLA.match(name):
            return f"<{name}> comes after <windows.h>, which MFC refuses" if windows else None
        windows |= name.lower() in ("windows.h", "windowsx.h", "commctrl.h", "psapi.h", "shellapi.h")
    return None


def main():
    checked = failed = 0
    for folder in sorted(set(ALLOWED) | EVERYTHING):
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp", ".rc"):
                continue
            checked += 1
            faults = list(faults_in(path, folder))
            order = order_fault(path) if path.suffix == ".cpp" and folder != "framework" else None
            if order:
                faults.append((1, order))
            for number, fault in faults:
                failed += 1
                print(f"{path.relative_to(ROOT)}:{number}: {fault}")
    print(f"{checked} files checked, {failed} faults")
    return 1 if failed or checked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
