#!/usr/bin/env python3
"""Fails when a function of our own has a result prefix, as the host's have, or stands outside of the namespace.

The host's own names are the list host_names.txt beside this script; lint.py gives it to clang-tidy, which holds the
letters of all other names.
"""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
HOST_NAMES = ROOT / "tools" / "host_names.txt"
NOT_CODE = re.compile(r'R"([^(]*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|//[^\n]*|/\*.*?\*/', re.DOTALL)
PREFIXED = re.compile(r"\b(?:csz|sz|b|i|p|v)[A-Z]\w*(?=\()")
# A class is the host's by the host's class prefixes, or one of those that hosts give these names.
OUTSIDE = re.compile(r"^(?:class|struct|enum class|enum) (?:WIREPANE_\w+ )?(\w+)(?![\w:;])[^;{]*\{", re.MULTILINE)
OF_THE_HOST = re.compile(r"(BK|C|RV|TRV|S|Quote|My)[A-Z]\w*|SearchControl|SearchEdit2|NewsStoryView")
INSIDE = re.compile(r"^namespace wirepane\b.*?^\}  // namespace wirepane\b", re.MULTILINE | re.DOTALL)


def host_names() -> set[str]:
    return set(HOST_NAMES.read_text(encoding="utf-8").split())


def faults_of(path: str, known: set[str]) -> list[str]:
    text = (ROOT / path).read_text(encoding="utf-8")
    code = NOT_CODE.sub(" ", text)
    faults = [f"{path}: {name}: a result prefix" for name in sorted(set(PREFIXED.findall(code)) - known)]
    if path.endswith(".h") and not path.startswith("examples/"):
        faults += [f"{path}: {name}: outside of namespace wirepane" for name in OUTSIDE.findall(NOT_CODE.sub(" ", INSIDE.sub("", text)))
                   if not OF_THE_HOST.fullmatch(name)]
    return faults


def main() -> int:
    known = host_names()
    listed = subprocess.run(["git", "ls-files", "*.h", "*.cpp"], cwd=ROOT, check=True, capture_output=True, text=True)
    sources = [path for path in listed.stdout.split() if (ROOT / path).exists()]
    faults = [fault for path in sources for fault in faults_of(path, known)]
    print("\n".join(faults) or f"{len(sources)} files; {len(known)} names of the host, no other in its style")
    return 1 if faults or not known or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
