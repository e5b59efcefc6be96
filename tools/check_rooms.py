#!/usr/bin/env python3
"""Fails when an include runs up the house: a room may use itself and what stands below it, nothing else."""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
MIDDLE = {"headline_list", "host"}
MAY_USE = {
    "host": set(),
    "headline_list": {"host"},
    "story": MIDDLE,
    "output": MIDDLE | {"story"},
    "search": MIDDLE,
    "news_view": MIDDLE | {"story", "output", "search"},
    "backend": {"host"},
    "terminal": {"host", "backend"},
    "examples": {"host"},
}
# A back end needs no widgets: of the host it knows the contract alone.
WITHOUT_WIDGETS = {"backend", "host/contract"}
INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([^">]+)[">]', re.MULTILINE)
WIDGETS = re.compile(r"^(QWidget|QApplication|QMessageBox|QtWidgets/.*|host/(controls|views)/.*)$")


def faults_of(path: str) -> list[str]:
    room = path.split("/")[0]
    faults = []
    for include in INCLUDE.findall((ROOT / path).read_text(encoding="utf-8")):
        other = include.split("/")[0]
        if other in MAY_USE and other != room and other not in MAY_USE[room]:
            faults.append(f"{path}: includes {include}: {room}/ may not know {other}/")
        if any(path.startswith(place + "/") for place in WITHOUT_WIDGETS) and WIDGETS.match(include):
            faults.append(f"{path}: includes {include}: no widgets here")
    return faults


def main() -> int:
    files = subprocess.run(["git", "ls-files", "*.h", "*.cpp"], cwd=ROOT, check=True, capture_output=True, text=True)
    sources = [path for path in files.stdout.split() if path.split("/")[0] in MAY_USE]
    faults = [fault for path in sources for fault in faults_of(path)]
    print("\n".join(faults) or f"{len(sources)} files, every include runs down the house")
    return 1 if faults or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
