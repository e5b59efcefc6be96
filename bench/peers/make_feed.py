#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Wirepane authors
# SPDX-License-Identifier: MIT
"""Writes an RSS feed of invented news: make_feed.py COUNT [MORE] > feed.xml

Items of 2 kB, all of 2 March 2026, newest first. MORE (0) of them come on top, as a feed that has gone on. The same
numbers give the same bytes. Every tenth item holds the word "palladium"; the one in the middle holds "zirconium".
"""
import random
import sys
from email.utils import formatdate

COMMON, RARE = 'palladium', 'zirconium'
MIDNIGHT = 1772409600  # 2026-03-02 00:00 UTC
SECONDS = 30000        # of the day, over which the items are spread
STORY = 1900           # characters

WORDS = '''shares market bank rate yield bond trade export import copper steel grain cotton freight harbour vessel
order profit margin quarter forecast analyst broker index futures spot premium discount supply demand output refinery
pipeline turbine battery foundry wafer chip panel carrier airline railway bridge tunnel dividend buyback merger tender
licence patent tariff quota subsidy deficit surplus inflation payroll survey minister council regulator court ruling
appeal settlement audit pledge collateral custody clearing settlement maturity coupon tranche syndicate mandate'''.split()


def sentence(draw):
    words = [draw.choice(WORDS) for _ in range(draw.randint(6, 16))]
    return (' '.join(words) + '.').capitalize()


def story(draw, number, count):
    special = [COMMON] if number % 10 == 0 else []
    special += [RARE] if number == count // 2 else []
    paragraphs, length = [], 0
    while length < STORY:
        text = ' '.join(sentence(draw) for _ in range(3))
        if special:
            text += ' Prices of ' + special.pop() + ' rose.'
        paragraphs.append('<p>' + text + '</p>')
        length += len(paragraphs[-1])
    return ''.join(paragraphs)


def item(number, count):
    draw = random.Random(number)
    return ('<item><title>{} {}</title><link>http://news.example/{}</link><guid isPermaLink="false">item:{}</guid>'
            '<pubDate>{}</pubDate><description><![CDATA[{}]]></description></item>\n').format(
                sentence(draw)[:60], number, number, number,
                formatdate(MIDNIGHT + number * SECONDS // count), story(draw, number, count))


def write(out, count, more=0):
    out.write('<?xml version="1.0" encoding="UTF-8"?>\n<rss version="2.0"><channel><title>Invented news</title>'
              '<link>http://news.example/</link><description>Nothing of it is true.</description>\n')
    for number in range(count + more, 0, -1):
        out.write(item(number, count))
    out.write('</channel></rss>\n')


if __name__ == '__main__':
    write(sys.stdout, int(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 0)
