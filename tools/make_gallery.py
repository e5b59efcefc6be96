#!/usr/bin/env python3
"""Makes pictures of the terminal as users see it: every mode, layout, dialog and empty state, in both schemes, the three
languages, three sizes and at twice the scale. For looking at: only the few of docs/gallery are kept.

make_gallery.py WIREPANE FOLDER      all of them, about 200
make_gallery.py WIREPANE --chosen    those of docs/gallery, reduced to 128 colours
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "docs" / "guide"))
from pictures import (ALL, CATEGORY, DEALS_DIALOG, RELATION, RELATION_DIALOG, SEARCH, SEARCH_BUTTON, SEARCH_EDIT,
                      SHOW_TYPE, SYMBOL, TABS, WARNING_DIALOG, WARNINGS, WARRANTS, WORDS, Terminal)

SMALL, USUAL, LARGE = [1000, 620], [1280, 740], [1880, 980]
SERVICES, PICKER, KEYWORD, ADD = 3010, 9000, 2061, 2063
CHOSEN = {
    "all-news": ("en", "light", USUAL), "quick-search": ("en", "light", USUAL), "story-below": ("zh-TW", "light", USUAL),
    "by-symbol": ("zh-TW", "dark", USUAL), "all-news-dark": ("en", "dark", USUAL), "services": ("zh-CN", "light", SMALL),
    "search-dialog": ("zh-TW", "light", USUAL), "search-empty": ("en", "dark", SMALL), "calendar": ("zh-CN", "dark", SMALL),
    "settings": ("zh-CN", "light", SMALL), "import-report": ("zh-TW", "light", SMALL), "side-by-side": ("en", "light", LARGE),
}
OLD_NEWS = '{"uri": "u:%d", "type": "text", "versioncreated": "1987-03-03T01:00:00Z", "headline": "Grain ships delayed"}\n'


class Gallery:
    def __init__(self, program: str, folder: pathlib.Path, language: str, scheme: str, size: list, only: set):
        self.folder, self.language, self.scheme, self.size, self.only = folder, language, scheme, size, only
        # A folder that pictures may show.
        self.work = pathlib.Path(tempfile.gettempdir()) / "wirepane"
        shutil.rmtree(self.work, ignore_errors=True)
        self.work.mkdir()
        self.terminal = Terminal(program, language, self.work)
        self.ask = self.terminal.ask
        self.ask("host.set", scheme=scheme)
        # The frame keeps the size that it is given with a view in no dock.
        self.ask("view.open", size=size)
        self.ask("view.close")

    def run(self, scenes):
        try:
            for scene in scenes:
                scene(self)
            self.ask("app.quit")
            self.terminal.process.wait()
        finally:
            self.terminal.process.kill()
            shutil.rmtree(self.work, ignore_errors=True)

    def picture(self, name: str):
        if self.only and name not in self.only:
            return
        self.terminal.settle()
        path = self.folder / f"{name}.png"
        if not self.only:
            path = self.folder / f"{name}_{self.language}_{self.scheme}_{self.size[0]}.png"
        self.ask("screenshot", path=str(path))
        print(path.name)

    def mode(self, mode: int, row: int = 2):
        tabs = [tab["mode"] for tab in self.ask("view.state")["tabs"]]
        self.ask("control.choose", id=TABS, index=tabs.index(mode))
        self.terminal.settle()
        if self.ask("grid.read", list=mode)["rows"] > row:
            self.ask("input.click", row=row)
            self.terminal.settle()

    def by_key(self, key: str, name: str):
        self.ask("input.key", key=key)
        self.picture(name)
        self.ask("dialog.close")

    def open(self, **what):
        self.ask("view.open", docked=True, **what)


def modes(of: Gallery):
    of.open()
    for mode, name in ((SEARCH, "search-empty"), (RELATION, "relation-empty"), (WARRANTS, "warrants"),
                       (CATEGORY, "by-category"), (SYMBOL, "by-symbol"), (ALL, "all-news")):
        of.mode(mode)
        of.picture(name)
    of.picture("all-news-dark")
    of.ask("view.command", id=SHOW_TYPE)
    of.picture("story-below")
    for _ in range(2):
        of.ask("view.command", id=SHOW_TYPE)
    word = WORDS[of.language][0]
    of.mode(SEARCH)
    for text, name in ((word, "quick-search"), ("zzzz", "search-without-hits")):
        of.ask("control.set", id=SEARCH_EDIT, text=text)
        of.ask("view.command", id=SEARCH_BUTTON)
        of.terminal.settle()
        of.picture(name)


def pop_ups(of: Gallery):
    of.mode(ALL)
    of.ask("menu.open", row=1)
    of.picture("context-menu")
    of.ask("menu.choose", id=None)
    of.ask("view.command", id=SERVICES)
    of.picture("services")
    of.ask("input.key", key="Escape")
    of.ask("date.open")
    of.picture("calendar")
    of.ask("date.close")
    of.ask("date.set", date=20250720)
    of.picture("day-without-news")
    of.ask("date.set", date=20260302)


def dialogs(of: Gallery):
    word, other = WORDS[of.language]
    for command, name in ((DEALS_DIALOG, "search-dialog"), (RELATION_DIALOG, "key-sets")):
        of.mode(SEARCH if command == DEALS_DIALOG else RELATION)
        of.ask("view.command", id=command)
        for keyword in (word, other):
            of.ask("dialog.set", id=KEYWORD, text=keyword)
            of.ask("dialog.click", id=ADD)
        of.picture(name)
        of.ask("dialog.set", id=2094, index=1)
        of.ask("dialog.click", id=PICKER)
        of.picture(name + "-picker")
        of.ask("dialog.close")
        of.ask("dialog.close")
    of.mode(ALL)
    for key, name in (("Ctrl+,", "settings"), ("Ctrl+G", "read-as-of"), ("Ctrl+P", "print"), ("Ctrl+Shift+P", "preview"),
                      ("Ctrl+S", "save"), ("F2", "rename"), ("Ctrl+O", "import"), ("F1", "guide")):
        of.by_key(key, name)


def import_report(of: Gallery):
    if of.only and "import-report" not in of.only:
        return
    file = of.work / "1987.jsonl"
    file.write_text("".join(OLD_NEWS % i for i in range(30)) + "{\n", encoding="utf-8")
    of.ask("input.key", key="Ctrl+O")
    of.ask("input.type", text=str(file))
    of.ask("input.key", key="Return")
    for _ in range(40):
        dialog = of.ask("dialog.state")
        if dialog and "Report" in dialog["class"]:
            break
        of.ask("wait", ms=250)
    of.picture("import-report")
    of.ask("dialog.close")


def story_window(of: Gallery):
    """Goes with its view alone: the next scene opens another one."""
    for _ in range(2):
        of.ask("view.command", id=SHOW_TYPE)
    of.ask("input.click", row=2, double=True)
    of.picture("story-window")


def warning_terms(of: Gallery):
    of.ask("host.set", switches={"ShowNormalSearch": 0, "ShowWarningSearch": 1})
    of.ask("view.close")
    of.open()
    of.mode(WARNINGS)
    of.picture("warnings-empty")
    of.ask("view.command", id=WARNING_DIALOG)
    of.picture("warning-terms")
    of.ask("dialog.click", id=3)
    of.picture("warning-item")
    of.ask("dialog.close")
    of.ask("dialog.close")
    of.ask("host.set", switches={"ShowNormalSearch": 1, "ShowWarningSearch": 0})
    of.ask("view.close")
    of.picture("empty-desk")


def side_by_side(of: Gallery):
    for news_type in (0, 2):
        of.open(newsType=news_type)
    of.ask("symbol.change", group=1, service=16, code="6214", name="")
    of.picture("side-by-side")


ALL_SCENES = (modes, pop_ups, dialogs, import_report, story_window, warning_terms, side_by_side)


def reduce(folder: pathlib.Path):
    for path in folder.glob("*.png"):
        subprocess.run(["convert", str(path), "-strip", "+dither", "-colors", "128", "-define", "png:compression-level=9",
                        f"PNG8:{path}"], check=True)


def main() -> int:
    program, where = sys.argv[1:3]
    if where == "--chosen":
        folder = ROOT / "docs" / "gallery"
        for language, scheme, size in sorted({tuple(map(str, kind[:2])) + (tuple(kind[2]),) for kind in CHOSEN.values()}):
            only = {name for name, kind in CHOSEN.items() if kind == (language, scheme, list(size))}
            scenes = (side_by_side,) if only == {"side-by-side"} else (modes, pop_ups, dialogs, import_report)
            Gallery(program, folder, language, scheme, list(size), only).run(scenes)
        reduce(folder)
        return 0
    folder = pathlib.Path(where).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    for language in ("en", "zh-TW", "zh-CN"):
        for scheme in ("light", "dark"):
            Gallery(program, folder, language, scheme, USUAL, set()).run(ALL_SCENES)
    for size in (SMALL, LARGE):
        Gallery(program, folder, "zh-TW", "light", size, set()).run((modes, side_by_side))
    os.environ["QT_SCALE_FACTOR"] = "2"
    twice = folder / "twice"
    twice.mkdir(exist_ok=True)
    Gallery(program, twice, "en", "light", SMALL, set()).run((modes, pop_ups))
    return 0


if __name__ == "__main__":
    sys.exit(main())
