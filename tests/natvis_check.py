#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks tintkit.natvis against the headers.

A debugger is silent about a member it does not find: it shows the raw object. So every type must be a
class of the toolkit, and every member path in an expression must exist, step by step through the types
of the members and the base classes.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDERS = ["draw", "controls", "menus", "decorations", "image", "diag", "framework/include"]
NAMESPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"

COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.S)
CLASS = re.compile(r"\b(?:class|struct)\s+(\w+)(?:\s+final)?\s*(?::\s*([^{;]+))?\{")
MEMBER = re.compile(r"^\s*(?:mutable\s+)?([\w:<>,\s*]+?)[\s*]+(\w+)\s*(?:\[[^\]]*\])?\s*(?:=[^;]*|\{[^;]*\})?;",
                    re.M)
PATH = re.compile(r"(?<![\w.>:])([A-Za-z_]\w*(?:(?:\.|->)\w+)*)")
# Words of an expression that are no members: types of casts, and constants.
NO_MEMBERS = {"void", "true", "false", "nullptr", "char", "int", "unsigned"}


def body_at(text, start):
    """The text up to the brace that closes the one before `start`, without nested braces' contents."""
    depth, kept = 1, []
    for character in text[start:]:
        depth += {"{": 1, "}": -1}.get(character, 0)
        if depth == 0:
            break
        if depth == 1:
            kept.append(character)
    return "".join(kept)


def read_classes():
    """Class name -> (base names, {member: type name})."""
    classes = {}
    for folder in FOLDERS:
        for header in sorted((ROOT / folder).rglob("*.h")):
            text = COMMENT.sub("", header.read_text(encoding="utf-8"))
            for found in CLASS.finditer(text):
                bases = re.findall(r"(\w+)\s*(?:,|$)", (found.group(2) or "").strip())
                members = {}
                for type_name, member in MEMBER.findall(body_at(text, found.end())):
                    words = re.findall(r"\w+", type_name)
                    if words and words[0] not in ("return", "using", "friend", "static"):
                        members[member] = words[-1]
                classes[found.group(1)] = (bases, members)
    return classes


def find_member(classes, name, member):
    """The type of a member of a class or one of its bases, None when there is none."""
    bases, members = classes.get(name, ((), {}))
    if member in members:
        return members[member]
    return next(filter(None, (find_member(classes, base, member) for base in bases)), None)


def path_fault(classes, type_name, path):
    current = type_name
    for step in re.split(r"\.|->", path):
        if current not in classes:
            return f"{path}: the members of {current} are unknown"
        found = find_member(classes, current, step)
        if found is None:
            return f"{current} has no member {step}"
        current = found
    return None


def expressions(node):
    """What a debugger evaluates below a <Type>."""
    for element in node.iter():
        if "Condition" in element.attrib:
            yield element.attrib["Condition"]
        text = element.text or ""
        if element.tag == NAMESPACE + "DisplayString":
            yield from (part.split(",")[0] for part in re.findall(r"\{([^}]*)\}", text))
        elif element.tag in {NAMESPACE + tag for tag in ("Item", "Size", "ValuePointer")}:
            yield text.split(",")[0]


def main():
    classes = read_classes()
    faults, checked = [], 0
    for node in ElementTree.parse(ROOT / "tintkit.natvis").getroot().iter(NAMESPACE + "Type"):
        name = node.attrib["Name"].split("::")[-1]
        if name not in classes:
            faults.append(f"no class {name}")
            continue
        for expression in expressions(node):
            for path in PATH.findall(expression):
                if path not in NO_MEMBERS:
                    checked += 1
                    fault = path_fault(classes, name, path)
                    faults += [f"{name}: {fault}"] if fault else []
    for fault in faults:
        print(f"tintkit.natvis: {fault}")
    print(f"{checked} members checked, {len(faults)} faults")
    return 1 if faults or checked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
