#!/usr/bin/env python3
"""clang-tidy over the sources of the product, as the given build folder compiles them.

lint.py BUILD_FOLDER [PATH...]     PATH: only sources below it, from the project's root

Sources of one target are read several at a time, so that the headers they share are read once; where two of them use
one name for different things, they are read in halves.
"""
import json
import os
import pathlib
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

ROOT = pathlib.Path(__file__).resolve().parent.parent
AT_ONCE = 8
OURS = r"(host|headline_list|story|output|search|news_view|backend|sample_wire|terminal|examples|bench|fuzz)/.*\.(h|cpp)$"
# Not ours to choose: the host's names, those of the fuzzer, the C library and the toolkit.
HOST_NAMES = (ROOT / "tools" / "host_names.txt").read_text(encoding="utf-8").split() + [
    "LLVMFuzzerTestOneInput", "__libc_malloc", "qt_sendShortcutOverrideEvent"]
NAME_CLASH = re.compile(r"\[clang-diagnostic-error\]")


def sources_by_target(build: pathlib.Path, below: list[str]) -> dict[str, list[dict]]:
    tracked = subprocess.run(["git", "ls-files", "*.cpp"], cwd=ROOT, capture_output=True, text=True, check=True)
    wanted = {str(ROOT / name) for name in tracked.stdout.split()
              if not name.startswith("tests/") and (not below or any(name.startswith(path) for path in below))}
    targets: dict[str, list[dict]] = {}
    for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
        if entry["file"] in wanted:
            target = re.search(r"(\S+\.dir)/", entry["output"] if "output" in entry else entry["command"])
            targets.setdefault(target.group(1), []).append(entry)
    return targets


def write_settings(folder: pathlib.Path) -> None:
    """The project's settings, and the names that keep letters of their own."""
    folder.mkdir(parents=True, exist_ok=True)
    names = f"^({'|'.join(HOST_NAMES)})$"
    options = "".join(f"  - {{ key: readability-identifier-naming.{kind}IgnoredRegexp, value: '{names}' }}\n"
                      for kind in ("Function", "Method"))
    settings = (ROOT / ".clang-tidy").read_text(encoding="utf-8").replace("FormatStyle:", options + "FormatStyle:")
    (folder / "settings").write_text(settings, encoding="utf-8")


def tidy(folder: pathlib.Path, name: str, entry: dict, files: list[str]) -> subprocess.CompletedProcess:
    """Reads these files as one source, compiled as `entry` is."""
    place = folder / name
    place.mkdir(parents=True, exist_ok=True)
    source = place / "sources.cpp"
    source.write_text("".join(f'#include "{file}"\n' for file in files), encoding="utf-8")
    # Without a compiler cache, and without the compiler's precompiled headers, which clang cannot read.
    command = re.sub(r"^\S*ccache ", "", entry["command"])
    command = re.sub(r" -Winvalid-pch| -fpch-preprocess| -include \S*cmake_pch\.hxx", "", command)
    command = command.replace(entry["file"], str(source))
    database = [{"directory": entry["directory"], "command": command, "file": str(source)}]
    (place / "compile_commands.json").write_text(json.dumps(database), encoding="utf-8")
    return subprocess.run(
        ["clang-tidy-14", "-p", str(place), "--quiet", f"--config-file={folder / 'settings'}",
         f"--header-filter={OURS}", "--extra-arg=-Wno-unknown-warning-option",
         str(source)],
        capture_output=True, text=True, check=False)


def main() -> int:
    build = pathlib.Path(sys.argv[1]).resolve()
    batches = []
    for target, entries in sources_by_target(build, sys.argv[2:]).items():
        # Every fuzz target has a function of the same name.
        at_once = 1 if "fuzz/CMakeFiles/" in target else AT_ONCE
        for i in range(0, len(entries), at_once):
            batches.append((f"{target}.{i // at_once}".replace("/", "_"), entries[i:i + at_once]))

    def check(batch: tuple[str, list[dict]]) -> list[str]:
        name, entries = batch
        run = tidy(build / "lint", name, entries[0], [entry["file"] for entry in entries])
        if run.returncode == 0:
            return []
        if len(entries) == 1 or not NAME_CLASH.search(run.stdout):
            return [run.stdout or run.stderr]
        # Two that clash are mostly parted by the first cut.
        middle = len(entries) // 2
        return check((name + ".a", entries[:middle])) + check((name + ".b", entries[middle:]))

    write_settings(build / "lint")
    with ThreadPoolExecutor(os.cpu_count()) as workers:
        faults = [fault for found in workers.map(check, batches) for fault in found]
    print("\n".join(faults) or f"{sum(len(entries) for _, entries in batches)} sources, nothing found")
    return 1 if faults else 0


sys.exit(main())
