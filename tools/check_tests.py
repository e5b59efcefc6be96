#!/usr/bin/env python3
"""Checks a finished test run: every test source belongs to a program, every program ran cases, none failed.

check_tests.py BUILD_FOLDER [--closing-line]
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COUNT = {kind: re.compile(rf"^\[ +{kind} +\] (\d+) tests?", re.MULTILINE) for kind in ("PASSED", "FAILED", "SKIPPED")}
PROGRAM = re.compile(r"^\d+/\d+ Test: (\S+)$", re.MULTILINE)


def unregistered_sources() -> list[str]:
    lists = "\n".join(path.read_text(encoding="utf-8") for path in ROOT.glob("tests/**/CMakeLists.txt"))
    sources = [path for path in ROOT.glob("tests/**/*.cpp") if re.search(r"^TEST", path.read_text(encoding="utf-8"), re.M)]
    return [str(path.relative_to(ROOT)) for path in sources if not re.search(rf"\b{re.escape(path.name)}\b", lists)]


def main() -> int:
    log = (pathlib.Path(sys.argv[1]) / "Testing/Temporary/LastTest.log").read_text(encoding="utf-8", errors="replace")
    parts = PROGRAM.split(log)[1:]
    programs = dict(zip(parts[0::2], parts[1::2]))
    totals = {kind: sum(int(n) for n in pattern.findall(log)) for kind, pattern in COUNT.items()}
    faults = [f"{name}: no test program builds it" for name in unregistered_sources()]
    cases = {name: text for name, text in programs.items() if "[==========]" in text}
    faults += [f"{name}: ran no case" for name, text in cases.items() if not re.search(r"\[ +OK +\]", text)]
    # A program without cases of its own, such as an example, counts as one.
    for name in programs.keys() - cases.keys():
        totals["PASSED" if "Test Passed." in programs[name] else "FAILED"] += 1
    if not programs:
        faults.append("no test program ran")
    print("\n".join(faults), end="\n" if faults else "")
    if "--closing-line" in sys.argv:
        skipped = f", {totals['SKIPPED']} skipped" if totals["SKIPPED"] else ""
        print(f"{totals['PASSED']} passed, {totals['FAILED']} failed{skipped}")
    return 1 if faults or totals["FAILED"] else 0


if __name__ == "__main__":
    sys.exit(main())
