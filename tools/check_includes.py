#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks that every #include in src/ follows the arrows between the rooms, and that Qt stays in its rooms."""

import pathlib
import re
import sys

ROOMS = {
    "state": set(),
    "text": set(),
    "thermo": {"state"},
    "substance": {"state", "text", "thermo"},
    "calc": {"state", "text", "thermo", "substance"},
    "diagrams": {"state", "text", "thermo", "substance", "calc"},
    "fitting": {"state", "text", "thermo", "substance", "calc"},
    "shell": {"state", "text", "thermo", "substance", "calc", "diagrams", "fitting"},
    "platform": {"state"},
    "plot": {"state", "text", "diagrams"},
    "helpers": {"state", "text", "thermo"},
}
CORE = {"state", "text", "thermo", "substance", "calc", "diagrams", "fitting", "shell"}
ROOMS["ui"] = CORE | {"platform", "plot"}
ROOMS["cli"] = CORE | {"platform", "plot"}
QT_ROOMS = {"ui", "plot", "platform"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
QT_HEADER = re.compile(r"^(Q[A-Z]\w*|Qt\w*/.*|qcustomplot\.h)$")


def violations(source):
    found = []
    for path in sorted(source.rglob("*")):
        if path.suffix not in {".h", ".cpp"}:
            continue
        room = path.relative_to(source).parts[0]
        if room not in ROOMS:
            found.append(f"{path}: {room} is not a room")
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            header = match.group(2)
            target = header.split("/")[0]
            if match.group(1) == '"' and "/" in header and target in ROOMS:
                if target != room and target not in ROOMS[room]:
                    found.append(f"{path}:{number}: room {room} may not include {header}")
            if QT_HEADER.match(header) and room not in QT_ROOMS:
                found.append(f"{path}:{number}: Qt header {header} outside of {', '.join(sorted(QT_ROOMS))}")
    return found


def main():
    source = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "src")
    found = violations(source)
    for line in found:
        print(line)
    print(f"include check: {len(found)} violation(s)")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
