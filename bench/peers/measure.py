#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Wirepane authors
# SPDX-License-Identifier: MIT
"""Runs one feed through readers of the distribution and through Wirepane, and writes a table of what it costs.

    bench/peers/measure.py --wirepane build/release/bin/wirepane [--items 20000] [--readers wirepane,newsboat,liferea]
                           [--patience 600] [--into docs/performance.md]

Readers that are not installed are left out, and said to be (bench/peers/install installs them). All that is written
stands in a temporary folder that is thrown away; nothing but files and a virtual display is used. With --into the
table replaces the one of this number of items in that document. --ours FOLDER runs the end-to-end benchmarks there
instead and writes their table.
"""
import argparse
import json
import os
import pty
import re
import select
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import make_feed

STEPS = [('import', 'Import'), ('again', 'The same feed again'), ('more', 'The same feed with one item more'),
         ('start', 'Start, until its window or list is there'), ('open', 'Open the list of all items'),
         ('rare', 'Search a word that one story holds'), ('common', 'Search a word that every tenth holds'),
         ('memory', 'Most memory of an import'), ('memory_open', 'Most memory with the list open'),
         ('disk', 'On disk, to a byte of feed')]


class OutOfPatience(Exception):
    pass


def seconds(value):
    return '%.2f s' % value if value < 10 else '%.0f s' % value


def megabytes(kilobytes):
    return '%d MB' % (kilobytes // 1024)


def run(command, patience, **options):
    """Wall and processor seconds, and the most memory in kB."""
    begin = time.monotonic()
    child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
    while True:
        pid, status, usage = os.wait4(child.pid, os.WNOHANG)
        if pid != 0:
            break
        if time.monotonic() - begin > patience:
            child.kill()
            raise OutOfPatience
        time.sleep(0.002)
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        raise RuntimeError('%s ended with %d' % (command[0], child.returncode))
    return time.monotonic() - begin, usage.ru_utime + usage.ru_stime, usage.ru_maxrss


def told(measured):
    return '%s (%s)' % (seconds(measured[0]), seconds(measured[1]))


def status_of(pid, name):
    for line in Path('/proc/%d/status' % pid).read_text().splitlines():
        if line.startswith(name + ':'):
            return int(line.split()[1])
    return 0


def processor_of(pid):
    fields = Path('/proc/%d/stat' % pid).read_text().rsplit(')', 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf('SC_CLK_TCK')


def size_of(folder):
    return sum(f.stat().st_size for f in Path(folder).rglob('*') if f.is_file())


def version_of(package):
    answer = subprocess.run(['dpkg-query', '-W', '-f', '${Version}', package], capture_output=True, text=True)
    return answer.stdout if answer.returncode == 0 else ''


class Reader:
    """One reader: what it takes in stands at `feed`, what it keeps in `home`."""

    def __init__(self, home, feed, count, options):
        self.home, self.feed, self.count, self.patience = home, feed, count, options.patience
        self.binary = options.wirepane
        home.mkdir()

    def file_of(self, number):
        return self.home.parent / ('feed-%d.xml' % number)

    def put(self, number):
        """The feed as it stands now, in place of the one before."""
        shutil.copyfile(self.file_of(number), self.feed)

    def importing(self):
        figures = {}
        for number, step in ((0, 'import'), (0, 'again'), (1, 'more')):
            self.put(number)
            measured = self.take()
            figures[step] = told(measured)
            if step == 'import':
                figures['memory'] = megabytes(measured[2])
                figures['disk'] = '%.2f' % (size_of(self.kept()) / self.file_of(0).stat().st_size)
        return figures


class Wirepane(Reader):
    name, about = 'Wirepane', 'from this tree'

    @staticmethod
    def version():
        return 'this tree'

    def kept(self):
        return self.home / 'store'

    def command(self, *words):
        return [self.binary, *words, '--store', str(self.kept() / 'news.wirepane')]

    def take(self):
        self.kept().mkdir(exist_ok=True)
        return run(self.command('import', str(self.feed)), self.patience)

    def looking(self):
        figures = {}
        for step, word in (('rare', make_feed.RARE), ('common', make_feed.COMMON)):
            command = self.command('search', '--limit', '20', word)
            figures[step] = told(run(command, self.patience))
            if not subprocess.run(command, capture_output=True, check=True).stdout:
                raise RuntimeError('nothing is found')
        begin = time.monotonic()
        program = subprocess.Popen(
            self.command('--automation', '--config', str(self.home / 'settings'), '--now', '2026-03-02T09:00:00Z'),
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)

        def ask(method, **params):
            program.stdin.write(json.dumps({'jsonrpc': '2.0', 'id': 1, 'method': method, 'params': params}) + '\n')
            program.stdin.flush()
            answer = json.loads(program.stdout.readline())
            return answer['result']

        ask('idle')
        figures['start'] = '%s (%s)' % (seconds(time.monotonic() - begin), seconds(processor_of(program.pid)))
        begin, before = time.monotonic(), processor_of(program.pid)
        ask('view.open', size=[1000, 700], own=True)
        rows = 0
        while rows < self.count:
            rows = ask('grid.read', list=0)['rows']
            if time.monotonic() - begin > self.patience:
                raise OutOfPatience
        figures['open'] = '%s (%s)' % (seconds(time.monotonic() - begin), seconds(processor_of(program.pid) - before))
        figures['memory_open'] = megabytes(status_of(program.pid, 'VmHWM'))
        program.stdin.close()
        program.wait()
        return figures


class Newsboat(Reader):
    name, package, about = 'newsboat', 'newsboat', 'a reader in a terminal; no index, searches by substring'

    @classmethod
    def version(cls):
        return version_of(cls.package)

    def kept(self):
        return self.home / 'kept'

    def command(self, *words):
        self.kept().mkdir(exist_ok=True)
        (self.home / 'urls').write_text('file://%s\n' % self.feed)
        (self.home / 'config').write_text('max-items 0\nauto-reload no\nconfirm-exit no\n')
        return ['newsboat', '-q', '-u', str(self.home / 'urls'), '-c', str(self.kept() / 'cache.db'),
                '-C', str(self.home / 'config'), *words]

    def take(self):
        return run(self.command('-x', 'reload'), self.patience)

    def looking(self):
        command = self.command()
        begin = time.monotonic()
        pid, screen = pty.fork()
        if pid == 0:
            os.environ.update(TERM='xterm', LINES='24', COLUMNS='120', HOME=str(self.home))
            os.execvp(command[0], command)

        figures, shown = {}, ''

        def wait_for(step, what, keys):
            nonlocal shown, begin
            before = processor_of(pid) if keys else 0
            if keys:
                begin = time.monotonic()
                shown = ''
                os.write(screen, keys)
            while not re.search(what, shown):
                if time.monotonic() - begin > self.patience:
                    raise OutOfPatience
                if select.select([screen], [], [], 0.5)[0]:
                    shown += os.read(screen, 65536).decode('utf-8', 'replace')
            if step:
                figures[step] = '%s (%s)' % (seconds(time.monotonic() - begin), seconds(processor_of(pid) - before))

        # Its screens, by what they are headed with; between two searches it goes back.
        wait_for('start', r'Your feeds|Invented news', b'')
        wait_for('open', r'Articles in feed', b'\r')
        figures['memory_open'] = megabytes(status_of(pid, 'VmHWM'))
        for step, word in (('rare', make_feed.RARE), ('common', make_feed.COMMON)):
            wait_for('', r'Search for', b'/')
            wait_for(step, r'Search result', word.encode() + b'\r')
            wait_for('', r'Articles in feed|Your feeds', b'q')
        os.kill(pid, signal.SIGKILL)
        os.waitpid(pid, 0)
        os.close(screen)
        return figures


class Liferea(Reader):
    name, package, about = 'Liferea', 'liferea', 'a reader with windows; its lists and its search are not driven here'

    @classmethod
    def version(cls):
        return version_of(cls.package)

    def kept(self):
        return self.home / 'data'

    def environment(self):
        folders = {'XDG_DATA_HOME': self.kept(), 'XDG_CONFIG_HOME': self.home / 'config',
                   'XDG_CACHE_HOME': self.home / 'cache', 'HOME': self.home}
        return dict(os.environ, GSETTINGS_BACKEND='memory', NO_AT_BRIDGE='1',
                    **{name: str(folder) for name, folder in folders.items()})

    def items(self):
        try:
            with sqlite3.connect('file:%s?mode=ro' % (self.kept() / 'liferea' / 'liferea.db'), uri=True,
                                 timeout=0.1) as store:
                return store.execute('SELECT count(*) FROM items').fetchone()[0]
        except sqlite3.Error:
            return 0

    def begin(self):
        lists = self.home / 'config' / 'liferea'
        lists.mkdir(parents=True, exist_ok=True)
        self.kept().mkdir(exist_ok=True)
        if not (lists / 'feedlist.opml').exists():
            (lists / 'feedlist.opml').write_text(
                '<?xml version="1.0"?><opml version="1.0"><head/><body><outline title="Invented news" '
                'text="Invented news" type="rss" id="invented" xmlUrl="%s" updateInterval="-1" '
                'cacheLimit="unlimited"/></body></opml>' % self.feed)
        return subprocess.Popen(['dbus-run-session', '--', 'liferea'], env=self.environment(), start_new_session=True,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    @staticmethod
    def process_of(session):
        """The reader itself, which the session of its own has as a child."""
        for _ in range(1000):
            children = Path('/proc/%d/task/%d/children' % (session.pid, session.pid)).read_text().split()
            for child in children:
                if Path('/proc/%s/comm' % child).read_text().strip() == 'liferea':
                    return int(child)
            time.sleep(0.005)
        raise RuntimeError('liferea does not start')

    @staticmethod
    def end(session, process):
        """With what it has started, which is of its group; it may take its time."""
        os.killpg(session.pid, signal.SIGTERM)
        begin = time.monotonic()
        while Path('/proc/%d' % process).exists() and time.monotonic() - begin < 30:
            time.sleep(0.1)
        try:
            os.killpg(session.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        session.wait()

    def wait_for(self, isThere, begin):
        while not isThere():
            if time.monotonic() - begin > self.patience:
                raise OutOfPatience
            time.sleep(0.02)

    def window_of(self, process, begin):
        windows = []

        def isShown():
            answer = subprocess.run(['xdotool', 'search', '--onlyvisible', '--pid', str(process)],
                                    capture_output=True, text=True)
            windows[:] = answer.stdout.split()
            return windows

        self.wait_for(isShown, begin)
        return windows[-1]

    def importing(self):
        # By its command to update all feeds. When it is done with one that holds nothing new, nothing tells.
        figures = {}
        self.put(0)
        session = self.begin()
        process = self.process_of(session)
        try:
            window = self.window_of(process, time.monotonic())
            for number, step in ((0, 'import'), (1, 'more')):
                self.put(number)
                time.sleep(2)  # at rest
                begin, before = time.monotonic(), processor_of(process)
                subprocess.run(['xdotool', 'windowfocus', '--sync', window, 'key', 'ctrl+u'], check=True)
                try:
                    self.wait_for(lambda: self.items() >= self.count + number, begin)
                except OutOfPatience:
                    figures[step] = 'not within %s: %d items' % (seconds(self.patience), self.items())
                    break
                figures[step] = '%s (%s)' % (seconds(time.monotonic() - begin),
                                             seconds(processor_of(process) - before))
                if step == 'import':
                    figures['disk'] = '%.2f' % (size_of(self.kept()) / self.file_of(0).stat().st_size)
                    figures['memory'] = megabytes(status_of(process, 'VmHWM'))
            return figures
        finally:
            self.end(session, process)

    def looking(self):
        begin = time.monotonic()
        session = self.begin()
        process = self.process_of(session)
        try:
            self.window_of(process, begin)
            return {'start': '%s (%s)' % (seconds(time.monotonic() - begin), seconds(processor_of(process)))}
        finally:
            self.end(session, process)


READERS = {'wirepane': Wirepane, 'newsboat': Newsboat, 'liferea': Liferea}

# Program, cases, what they do, and what is said of each by its counters.
OURS = [
    ('bench_live_feed', 'lineToPaintedRow/10000', '500 lines of a feed a second, three views: from the socket to the painted row',
     '{ms_50:.0f} ms for the one in the middle, {ms_99:.0f} ms for 99 of 100'),
    ('bench_live_feed', 'keysDuringALiveFeed/200000/0', '200,000 lines as fast as they are taken, three views, with somebody at the keys',
     '{items_per_s:,.0f} lines a second; a key waits {ms_50:.0f} ms, {ms_99:.0f} ms in 99 of 100 cases'),
    ('bench_long_story', 'longStory/./4194304', 'a story of 4 MB, {label}',
     'painted after {first_ms:.0f} ms, laid out after {whole_ms:.0f} ms more; meanwhile an input waits {whole_wait_ms:.0f} ms at '
     'most'),
    ('bench_output', 'printInBackground/4194304', 'the same in {pages:.0f} pages, in the background',
     '{real_time:.0f} ms; an input waits {wait_ms:.0f} ms at most'),
    ('bench_opening', 'openDay/1000000', 'a day of a million headlines opens',
     '{real_time:.0f} ms, {of_bare:.1f} times the bare reading of its rows'),
    ('bench_host', 'paintSixtyRows/1', '60 rows on screen are painted anew, with tags, chips, arrivals and one under the pointer',
     '{real_time:.1f} ms'),
    ('bench_host', 'scrollSteps/1/', 'a step of a scroll through a million rows, painted: a row, a page, to any place',
     '{p99:.0f} ms ({p99_cpu:.0f} ms) in 99 of 100 cases'),
]


def conditions():
    model = re.search(r'model name\s*: (.*)', Path('/proc/cpuinfo').read_text())
    memory = int(re.search(r'MemTotal:\s*(\d+)', Path('/proc/meminfo').read_text()).group(1))
    system = re.search(r'PRETTY_NAME="(.*)"', Path('/etc/os-release').read_text())
    return '%s, %d processors (%s), %d GB; load when it began: %.1f' % (
        system.group(1), os.cpu_count(), model.group(1).strip() if model else 'unknown', memory // 2**20,
        os.getloadavg()[0])


def display():
    """A virtual display of its own; None where there is none."""
    if shutil.which('Xvfb') is None:
        return None
    read, write = os.pipe()
    server = subprocess.Popen(['Xvfb', '-displayfd', str(write), '-screen', '0', '1920x1080x24', '-nolisten', 'tcp'],
                              pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(write)
    os.environ['DISPLAY'] = ':' + os.read(read, 16).decode().strip()
    os.environ['QT_QPA_PLATFORM'] = 'xcb'
    return server


def measure(name, folder, feed, options):
    reader = READERS[name](folder / name, feed, options.items, options)
    figures = {}
    for part in (reader.importing, reader.looking):
        try:
            figures.update(part())
        except OutOfPatience:
            figures.setdefault('import', 'not within %s' % seconds(options.patience))
            break
    return figures


def peers(options):
    lines = ['%s. %s items, %d MB.' % (conditions(), format(options.items, ','), 0)]
    wanted = options.readers.split(',')
    found = [r for r in wanted if r == 'wirepane' or READERS[r].version()]
    with tempfile.TemporaryDirectory() as scratch:
        folder = Path(scratch)
        for more in (0, 1):
            with open(folder / ('feed-%d.xml' % more), 'w', encoding='utf-8') as out:
                make_feed.write(out, options.items, more)
        lines[0] = lines[0].replace(', 0 MB.', ', %d MB.' % ((folder / 'feed-0.xml').stat().st_size // 10**6))
        feed = folder / 'feed.xml'
        table = {name: measure(name, folder, feed, options) for name in found}
    lines += ['', '| | ' + ' | '.join('%s %s' % (READERS[r].name, '' if r == 'wirepane' else READERS[r].version())
                                      for r in found).replace('  ', ' ') + ' |', '|---|' + '---|' * len(found)]
    for step, text in STEPS:
        lines.append('| %s | %s |' % (text, ' | '.join(table[r].get(step, '-') for r in found)))
    for name in wanted:
        if name not in found:
            lines += ['', '%s is not installed here, and left out.' % READERS[name].name]
    return lines


def ours(options):
    lines = ['%s.' % conditions(), '', '| What | It takes |', '|---|---|']
    for program, cases, what, said in OURS:
        answer = subprocess.run([str(Path(options.ours) / program), '--benchmark_filter=' + cases,
                                 '--benchmark_format=json'], env=dict(os.environ, QT_QPA_PLATFORM='offscreen'),
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
        for case in json.loads(answer.stdout)['benchmarks']:
            lines.append('| %s | %s |' % (what.format(**case), said.format(**case)))
    return lines


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('--wirepane', default='build/release/bin/wirepane')
    parser.add_argument('--items', type=int, default=20000)
    parser.add_argument('--readers', default='wirepane,newsboat,liferea')
    parser.add_argument('--patience', type=float, default=600, help='seconds for one step')
    parser.add_argument('--ours', help='the folder of the benchmarks')
    parser.add_argument('--into', type=Path)
    options = parser.parse_args()
    mark = 'ours' if options.ours else '%d items' % options.items
    place = re.compile(r'(<!-- %s -->\n).*?(<!-- end -->)' % mark, re.DOTALL)
    if options.into is not None and not place.search(options.into.read_text(encoding='utf-8')):
        sys.exit('%s has no place for "%s"' % (options.into, mark))
    server = None if options.ours else display()
    try:
        lines = ours(options) if options.ours else peers(options)
    finally:
        if server is not None:
            server.terminate()
    text = '\n'.join(lines)
    if options.into is None:
        print(text)
        return
    document = options.into.read_text(encoding='utf-8')
    options.into.write_text(place.sub(lambda m: m.group(1) + text + '\n' + m.group(2), document), encoding='utf-8')


if __name__ == '__main__':
    main()
