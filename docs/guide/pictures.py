#!/usr/bin/env python3
"""Makes the pictures of the guide from the running program: every mode and dialog, light and dark. Those of the guide in
Chinese stand in pictures_zh_TW and pictures_zh_CN.

pictures.py WIREPANE [FOLDER [LANGUAGE]]    FOLDER: beside this script; LANGUAGE: en, zh-TW or zh-CN

Where pngquant is installed, it makes the pictures a third as large.
"""
import http.server
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading

MOMENT = "2026-03-02T10:30:00"
PRESENT = 1_772_418_600  # the same, in seconds since 1970
ALL, CATEGORY, SYMBOL, SEARCH, RELATION, WARRANTS, WARNINGS = range(7)
TABS, SEARCH_EDIT, SEARCH_BUTTON, SHOW_TYPE = 3100, 3008, 3007, 25458
DEALS_DIALOG, RELATION_DIALOG, WARNING_DIALOG, EXPORT_LIST = 3002, 3001, 3006, 3030
WORDS = {"en": ("rate", "bank"), "zh-TW": ("市場", "銀行"), "zh-CN": ("公司", "银行")}
SEARCH_NAMES = {"en": ("Interest rates", "Central banks"), "zh-TW": ("市場消息", "市場與銀行"), "zh-CN": ("公司消息", "公司与银行")}
NOT_FOUND = {"en": "rate bank statement on:today", "zh-TW": "市場 銀行 on:today", "zh-CN": "公司 银行 on:today"}

# Alert rules (name, query, tint, tag), what comes, and what comes often.
RULES = {
    "en": (("Flashes", "title:FLASH", 1, ""), ("Copper", "copper -scrap", 4, "Cu"), ("Harbour Steel", "\"Harbour Steel\"", 3, "HS")),
    "zh-TW": (("快訊", "title:快訊", 1, ""), ("銅", "銅 -廢銅", 4, "銅"), ("港口鋼鐵", "港口鋼鐵", 3, "鋼")),
    "zh-CN": (("快讯", "title:快讯", 1, ""), ("铜", "铜 -废铜", 4, "铜"), ("港口钢铁", "港口钢铁", 3, "钢")),
}
ARRIVALS = {
    "en": ("FLASH: Harbour Steel halts its second furnace", "Copper stocks at a low of three years", "Shares open little changed"),
    "zh-TW": ("快訊：港口鋼鐵停開二號高爐", "銅庫存降至三年低點", "股市開盤變動不大"),
    "zh-CN": ("快讯：港口钢铁停开二号高炉", "铜库存降至三年低点", "股市开盘变动不大"),
}
COMMODITIES = {"en": (1, 108), "zh-TW": (2, 208), "zh-CN": (2, 208)}  # service and topic
BURST = {"en": "Tin futures at {}", "zh-TW": "錫期貨報 {}", "zh-CN": "锡期货报 {}"}

LIST_PORT = 8719  # always the same, because the picture names it
LIST_TITLES = {"en": "Announcements", "zh-TW": "重大訊息", "zh-CN": "重大讯息"}
ANNOUNCEMENTS = (("9001", "旻蘅化工", "12", "召開法人說明會"), ("9002", "禧湖科技", "51", "公告本公司更換會計師"),
                 ("9003", "翎崗數位", "31", "公告董事會通過年度財務報告"), ("9004", "琛溪乳業", "20", "公告取得機器設備"))


class AnnouncementList(http.server.BaseHTTPRequestHandler):
    """A list as the exchange publishes it, of invented companies."""

    def do_GET(self):
        rows = [{"出表日期": "1150302", "發言日期": "1150302", "發言時間": f"{90000 + 500 * place}", "公司代號": code,
                 "公司名稱": name, "主旨 ": subject, "符合條款": f"第{rule}款", "事實發生日": "1150302", "說明": subject}
                for place, (code, name, rule, subject) in enumerate(ANNOUNCEMENTS)]
        body = json.dumps(rows).encode()
        self.send_response_only(200)  # without a date, which would not be that of the pictures
        self.send_header("Content-Type", "application/json")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


class Terminal:
    """The program, driven over its automation interface; ends with the block."""

    def __init__(self, program: str, language: str, work: pathlib.Path):
        self.language = language
        arguments = ["--automation", "--offscreen", "--sample", "--now", MOMENT, "--lang", language]
        arguments += ["--store", str(work / "news"), "--config", str(work / "config")]
        # File dialogs show where it runs, and whose home it is.
        desk = work / "user" / "news"
        desk.mkdir(parents=True)
        self.process = subprocess.Popen([program, *arguments], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                                        cwd=desk, env=dict(os.environ, TZ="Asia/Taipei", HOME=str(desk.parent)))
        self.number = 0

    def ask(self, method: str, **params):
        self.number += 1
        request = {"jsonrpc": "2.0", "id": self.number, "method": method, "params": params}
        print(json.dumps(request), file=self.process.stdin, flush=True)
        for line in self.process.stdout:
            answer = json.loads(line)
            if answer.get("id") != self.number:
                continue
            if "error" in answer:
                raise SystemExit(f"{method} {params}: {answer['error']['message']}")
            return answer["result"]
        raise SystemExit(f"{method} {params}: the terminal has ended")

    def settle(self):
        self.ask("wait", ms=400)
        self.ask("idle")


class Guide:
    def __init__(self, terminal: Terminal, folder: pathlib.Path):
        self.terminal, self.ask, self.folder = terminal, terminal.ask, folder
        self.symbol = {}

    def picture(self, name: str, **what):
        self.terminal.settle()
        path = str(self.folder / f"{name}.png")
        self.ask("screenshot", path=path, **what)
        if shutil.which("pngquant"):
            subprocess.run(["pngquant", "--force", "--ext", ".png", "--speed", "1", "64", path], check=True)
        print(name)

    def open_anew(self, height: int):
        self.ask("view.close")
        self.ask("view.open", size=[1000, height], mask=127, own=True)

    def press(self, button: int):
        self.ask("input.click", target=button)
        self.terminal.settle()

    def show_mode(self, mode: int):
        tabs = [tab["mode"] for tab in self.ask("view.state")["tabs"]]
        self.ask("control.choose", id=TABS, index=tabs.index(mode))
        self.terminal.settle()

    def read(self, mode: int):
        """Selects the third row, whose story then stands beside the list."""
        if self.ask("grid.read", list=mode)["rows"] > 2:
            self.ask("input.click", row=2)
            self.terminal.settle()

    def modes(self):
        self.ask("view.open", size=[1000, 620], mask=127, own=True)
        for mode, name in ((ALL, "all-news"), (CATEGORY, "by-category"), (SYMBOL, "by-symbol"), (WARRANTS, "warrants")):
            self.show_mode(mode)
            self.read(mode)
            self.picture(name)
            if mode == SYMBOL:
                self.symbol = self.ask("view.state")["symbol"]
        self.ask("host.set", scheme="dark")
        self.show_mode(ALL)
        self.picture("all-news-dark")
        self.ask("host.set", scheme="light")
        self.press(SHOW_TYPE)
        self.picture("story-below")
        self.press(SHOW_TYPE)
        self.ask("input.click", row=2, double=True)
        self.picture("story-window")
        self.ask("input.key", key="Escape")
        self.press(SHOW_TYPE)
        self.ask("menu.open", row=1)
        self.picture("context-menu")
        self.ask("menu.choose", id=None)
        self.ask("date.open")
        self.picture("calendar")
        self.ask("date.close")

    def searches(self):
        word, other = WORDS[self.terminal.language]
        self.show_mode(SEARCH)
        self.search_for(f"{word} -{other}")
        self.read(SEARCH)
        self.picture("quick-search")
        self.search_box()
        self.open_anew(690)  # the dialog is higher than the usual window
        self.show_mode(SEARCH)
        self.ask("view.command", id=DEALS_DIALOG)
        for keyword in (word, other):
            self.ask("dialog.set", id=2061, text=keyword)
            self.ask("dialog.click", id=2063)
        self.picture("search-dialog")
        self.ask("host.set", scheme="dark")
        self.picture("search-dialog-dark")
        self.ask("host.set", scheme="light")
        self.ask("dialog.set", id=2094, index=1)
        self.ask("dialog.set", id=2086, text="23")
        self.picture("search-dialog-symbols")
        self.ask("dialog.click", id=9000)
        self.picture("symbol-picker")
        self.ask("dialog.close")
        self.ask("dialog.close")
        self.open_anew(620)

    def search_for(self, text: str):
        self.ask("control.set", id=SEARCH_EDIT, text=text)
        self.ask("view.command", id=SEARCH_BUTTON)
        self.terminal.settle()

    def press_keys(self, *keys: str, **where):
        for key in keys:
            self.ask("input.key", key=key, **where)
            self.terminal.settle()

    def search_box(self):
        """What drops down from it, what it offers where nothing is found, and where its results go."""
        word, other = WORDS[self.terminal.language]
        for text, name in zip((word, f"{word} | {other}"), SEARCH_NAMES[self.terminal.language]):
            self.search_for(text)
            self.press_keys("Alt+Down", target=SEARCH_EDIT)
            self.press_keys("Up", "Up", "Return")  # saves it
            self.ask("input.type", text=name)
            self.press_keys("Return")
        self.search_for(NOT_FOUND[self.terminal.language])
        self.picture("search-offers")
        self.press_keys("Alt+Down", target=SEARCH_EDIT)
        self.picture("search-box")
        self.press_keys("Escape")
        self.search_for(word)
        self.ask("menu.open", row=1)
        self.ask("menu.choose", id=EXPORT_LIST)
        self.press_keys("Tab", "Alt+Down")
        self.picture("export-list")
        self.press_keys("Escape", "Escape")

    def standing_searches(self):
        word, other = WORDS[self.terminal.language]
        self.show_mode(RELATION)
        self.picture("relation-list-empty")
        self.ask("view.command", id=RELATION_DIALOG)
        for keyword in (word.upper(), other.upper()):
            self.ask("dialog.set", id=2061, text=keyword)
            self.ask("dialog.click", id=2063)
            self.ask("dialog.set", id=2034, checked=True)
            self.ask("dialog.click", id=2091)
        self.picture("key-sets")
        self.ask("dialog.click", id=1)
        self.terminal.settle()
        self.read(RELATION)
        self.picture("relation-list")

    def warning_terms(self):
        word, other = WORDS[self.terminal.language]
        # With both kinds of standing searches on, a view loads nothing but searches.
        self.ask("host.set", switches={"ShowNormalSearch": 0, "ShowWarningSearch": 1})
        self.open_anew(620)
        self.show_mode(WARNINGS)
        self.ask("view.command", id=WARNING_DIALOG)
        self.ask("dialog.click", id=3)
        self.ask("dialog.set", id=2043, text=f"{word}, {other}")
        self.ask("dialog.set", id=2059, checked=True)
        self.picture("warning-item")
        self.ask("dialog.click", id=1)
        self.ask("dialog.set", id=2047, selection=[0])
        self.picture("warning-terms")
        self.ask("dialog.click", id=1)
        self.terminal.settle()
        self.read(WARNINGS)
        self.picture("warning-list")

    def desk(self):
        self.ask("host.set", switches={"ShowNormalSearch": 1, "ShowWarningSearch": 0})
        self.ask("view.close")
        for news_type in (0, 2):
            self.ask("view.open", docked=True, newsType=news_type)
        self.ask("symbol.change", group=1, name="", **self.symbol)
        self.terminal.settle()
        self.read(SYMBOL)
        self.picture("docked-views")
        # Those that name no folder of whoever runs this.
        for key, dialog in (("Ctrl+Shift+P", "preview"), ("Ctrl+,", "settings"), ("Ctrl+G", "read-as-of")):
            self.ask("input.key", key=key)
            self.picture(dialog)
            self.ask("dialog.close")

    def push(self, number: int, title: str, category: int = 0):
        self.ask("feed.push", service=self.source[0], time=PRESENT + number, seq=90_000 + number, title=title, category=category or self.source[1],
                 symbol="", related=[], story=title)

    def attention(self):
        """Alerts, what they do to lists, a list that is held with a burst in it, and a rehearsal."""
        language = self.terminal.language
        self.source = COMMODITIES[language]
        word = WORDS[language][0]
        rules = [{"name": name, "query": query, "tint": tint, "tag": tag, "toastSeconds": 0}
                 for name, query, tint, tag in RULES[language]]
        rules.append({"name": word, "query": word, "on": False, "budget": 20})
        self.ask("alert.setRules", rules=rules)
        self.ask("host.set", switches={"ShowNormalSearch": 1, "ShowWarningSearch": 0})
        self.ask("view.close")
        self.ask("view.open", size=[1000, 620], mask=127, own=True, settings={"FoldBursts": 4, "FollowNewest": False})
        for number, title in enumerate(ARRIVALS[language]):
            self.push(number, title)
        for number in range(20):
            self.push(3 + number, BURST[language].format(f"{28_000 + 5 * number:,}"))
        self.ask("grid.scroll", list=ALL, row=0)
        self.terminal.settle()
        self.ask("input.key", key="Ctrl+H")
        self.push(25, ARRIVALS[language][1], self.source[1] - 7)  # of companies
        self.picture("alerts-in-lists")
        self.ask("input.key", key="Ctrl+H")
        self.ask("input.key", key="Ctrl+Shift+B")
        self.picture("alerts")
        self.ask("input.key", key="Escape")
        self.ask("input.key", key="Ctrl+,")
        self.ask("input.key", key="Alt+A")
        self.picture("alert-rules")
        self.press_keys("End", "Alt+Y")
        self.terminal.settle()
        self.picture("rehearsal")
        self.ask("dialog.close")
        self.ask("dialog.close")

    def sources(self):
        with http.server.ThreadingHTTPServer(("127.0.0.1", LIST_PORT), AnnouncementList) as server:
            threading.Thread(target=server.serve_forever, daemon=True).start()
            self.ask("source.add", address=f"http://127.0.0.1:{LIST_PORT}/announcements.json", kind="table",
                     mapping="exchange_announcements", title=LIST_TITLES[self.terminal.language])
            self.ask("view.open", size=[1120, 560], mask=127, own=True)  # the page is 1080 wide
            self.ask("input.key", key="Ctrl+Shift+O")
            self.terminal.settle()
            self.ask("input.key", key="Alt+T")
            self.terminal.settle()
            self.picture("sources")
            self.ask("input.key", key="Alt+E")
            self.terminal.settle()
            self.ask("input.key", key="Alt+T")
            self.terminal.settle()
            self.picture("source-dialog")
            self.ask("dialog.close")
            server.shutdown()


def main() -> int:
    program = os.path.abspath(shutil.which(sys.argv[1]) or sys.argv[1])
    folder = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else pathlib.Path(__file__).resolve().parent / "pictures"
    folder.mkdir(parents=True, exist_ok=True)
    # A fixed place, because the status bar names it.
    work = pathlib.Path(tempfile.gettempdir()) / "wirepane"
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(mode=0o700)
    try:
        terminal = Terminal(program, sys.argv[3] if len(sys.argv) > 3 else "en", work)
        guide = Guide(terminal, folder.resolve())
        guide.modes()
        guide.searches()
        guide.standing_searches()
        guide.warning_terms()
        guide.attention()
        guide.desk()
        guide.sources()
        terminal.ask("app.quit")
        terminal.process.wait()
    finally:
        shutil.rmtree(work, ignore_errors=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
