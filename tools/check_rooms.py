#!/usr/bin/env python3
"""Fails when an include runs up the house: a room, or a floor of it, may use itself and what stands below it. And when
the owners of the news view's work know one another or their view, or its files reach more headers than they need."""
import pathlib
import re
import statistics
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
    "wire": {"backend", "host"},
    "sample_wire": {"backend", "host"},
    "terminal": {"host", "backend", "wire", "sample_wire"},
    "examples": {"host"},
}
# Floors within a room, from the ground up: a folder may use itself and those that it names, which stand above it in the
# table. ROOM: the files that stand in the room itself.
ROOM = ""
FLOORS = {
    "backend": {
        ROOM: set(),
        "lines": {ROOM},
        "words": {ROOM},
        "database": {ROOM, "words"},
        "search": {ROOM, "words", "database"},
        "store": {ROOM, "words", "database", "search"},
        "alerts": {ROOM, "database", "search", "store"},
        "diary": {ROOM, "database", "store"},
        "import": {ROOM},
        "feed": {ROOM, "lines", "database", "store", "import"},
        "network": {ROOM, "lines", "words", "database", "store", "import", "feed"},
    },
    "wire": {
        ROOM: set(),
        "postgres": {ROOM},
    },
    "terminal": {
        "console": set(),
        "translations": set(),
        "settings": set(),
        "sound": set(),
        "frame": {"translations", "settings"},
        "sources": {"translations", "settings", "frame"},
        "alerts": {"translations", "settings", "sound", "frame"},
        "diary": {"translations", "settings", "frame"},
        "session": {"console", "translations", "settings", "sound", "frame", "sources", "alerts", "diary"},
        "automation": {"settings", "frame", "sources", "alerts", "diary", "session"},
        "tour": {"console", "frame", "session", "automation"},
        "commands": {"console", "translations", "sources", "session", "automation", "tour"},
        ROOM: {"console", "commands"},
    },
}
# Rooms that know of others no more than these headers: the sample wire speaks the public feed lines and nothing else, as
# any source does, and the terminal starts it as a program.
NO_MORE_THAN = {
    ("sample_wire", "backend"): {"backend/news_item.h", "backend/feed/written_lines.h"},
    ("sample_wire", "host"): {"host/contract/fixed_services.h"},
    ("terminal", "sample_wire"): {"sample_wire/sample_options.h", "sample_wire/local_time.h"},
}
# The owners of the news view's work. What one needs of another it is given: only the place that brings them together
# knows the headers of others.
OWNERS = set(
    "arrangement category_mode context_menu days list_input live_news modes newest_row notice_board output_jobs searches "
    "sent_again service_menu shortcuts standing_searches story_display story_input symbol_mode view_builder".split()
)
BRINGS_OWNERS_TOGETHER = "news_view/view_parts.h"
# What keeps the view quick to read and to compile: lines of its face, of what owners see of it and of an owner's
# header; and headers of this repository that half of the room's files may reach, directly and by others.
MOST_LINES = {"news_view/trv_news_ctrl_view.h": 220, "news_view/view_context.h": 60}
MOST_LINES_OF_AN_OWNER = 110
MOST_REACHED_BY_HALF = 21
# Any source of the product: what is longer has more than one job.
MOST_LINES_OF_A_SOURCE = 470
# A back end needs no widgets: of the host it knows the contract alone.
WITHOUT_WIDGETS = {"backend", "wire", "host/contract", "sample_wire"}
INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([^">]+)[">]', re.MULTILINE)
WIDGETS = re.compile(r"^(QWidget|QApplication|QMessageBox|QtWidgets/.*|host/(controls|views)/.*)$")


def floor_of(path: str) -> str:
    folders = path.split("/")[1:-1]
    return folders[0] if folders else ROOM


def floor_fault(path: str, include: str) -> str:
    """Why the floor of the file may not use that of another file of its room; empty: it may."""
    floors = FLOORS.get(path.split("/")[0])
    floor, other = floor_of(path), floor_of(include)
    if floors is None or floor == other or other in floors.get(floor, set()):
        return ""
    return f"{path}: includes {include}: the floor {floor or 'of the room'} may not know {other or 'the room itself'}"


def owner_fault(path: str, include: str) -> str:
    """Why a file may not know the owner whose header it includes; empty: it may, or it is no owner's."""
    owner = pathlib.PurePath(include).stem
    known = path == BRINGS_OWNERS_TOGETHER or not path.startswith("news_view/") or owner == pathlib.PurePath(path).stem
    if known or not include.startswith("news_view/") or owner not in OWNERS:
        return ""
    return f"{path}: includes {include}: an owner is known to {BRINGS_OWNERS_TOGETHER} alone"


def faults_of_floors() -> list[str]:
    faults = []
    for room, floors in FLOORS.items():
        below: set[str] = set()
        for floor, uses in floors.items():
            faults += [f"{room}/{floor}: may use {other}, which stands above it" for other in sorted(uses - below)]
            below.add(floor)
    return faults


def faults_of(path: str) -> list[str]:
    room = path.split("/")[0]
    faults = []
    if floor_of(path) not in FLOORS.get(room, {floor_of(path): set()}):
        faults.append(f"{path}: {room}/{floor_of(path)} has no floor")
    for include in INCLUDE.findall((ROOT / path).read_text(encoding="utf-8")):
        other = include.split("/")[0]
        if other in MAY_USE and other != room and other not in MAY_USE[room]:
            faults.append(f"{path}: includes {include}: {room}/ may not know {other}/")
        if include not in NO_MORE_THAN.get((room, other), {include}):
            faults.append(f"{path}: includes {include}: {room}/ knows less of {other}/")
        if other == room and (fault := floor_fault(path, include)):
            faults.append(fault)
        if fault := owner_fault(path, include):
            faults.append(fault)
        if any(path.startswith(place + "/") for place in WITHOUT_WIDGETS) and WIDGETS.match(include):
            faults.append(f"{path}: includes {include}: no widgets here")
    return faults


def own_includes(path: str) -> list[str]:
    return [name for name in INCLUDE.findall((ROOT / path).read_text(encoding="utf-8")) if (ROOT / name).is_file()]


def reached(path: str, includes: dict[str, list[str]]) -> set[str]:
    found: set[str] = set()
    todo = [path]
    while todo:
        file = todo.pop()
        for include in includes.setdefault(file, own_includes(file)):
            if include not in found:
                found.add(include)
                todo.append(include)
    return found


def faults_of_view(sources: list[str]) -> list[str]:
    files = [path for path in sources if path.startswith("news_view/")]
    owners = {f"news_view/{owner}.h": MOST_LINES_OF_AN_OWNER for owner in OWNERS}
    faults = [f"{header}: there is no such header" for header in sorted((owners | MOST_LINES).keys() - set(files))]
    for header, most in sorted((owners | MOST_LINES).items()):
        lines = len((ROOT / header).read_text(encoding="utf-8").splitlines()) if header in files else 0
        if lines > most:
            faults.append(f"{header}: {lines} lines, {most} at most")
    includes: dict[str, list[str]] = {}
    half = statistics.median(len(reached(path, includes)) for path in files if path.endswith(".cpp"))
    if half > MOST_REACHED_BY_HALF:
        faults.append(f"news_view/: half of its files reach {half} headers or more, {MOST_REACHED_BY_HALF} at most")
    return faults


def faults_of_size(sources: list[str]) -> list[str]:
    sizes = {path: len((ROOT / path).read_text(encoding="utf-8").splitlines()) for path in sources}
    return [f"{path}: {lines} lines, {MOST_LINES_OF_A_SOURCE} at most"
            for path, lines in sizes.items() if lines > MOST_LINES_OF_A_SOURCE]


def main() -> int:
    files = subprocess.run(["git", "ls-files", "*.h", "*.cpp"], cwd=ROOT, check=True, capture_output=True, text=True)
    sources = [path for path in files.stdout.split() if path.split("/")[0] in MAY_USE]
    faults = faults_of_floors() + [fault for path in sources for fault in faults_of(path)] + faults_of_view(sources)
    faults += faults_of_size(sources)
    print("\n".join(faults) or f"{len(sources)} files, every include runs down the house")
    return 1 if faults or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
