// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/line_splitter.h"

#include <QByteArrayList>

#include <gtest/gtest.h>

namespace wirepane {

namespace {

struct Collector {
    LineSplitter splitter;
    QByteArrayList lines;
    int refused = 0;

    void feed(const QByteArray& bytes) {
        splitter.feed(
            bytes, [this](const QByteArray& line) { lines.append(line); }, [this] { ++refused; });
    }
    void finish() {
        splitter.finish([this](const QByteArray& line) { lines.append(line); });
    }
};

TEST(LineSplitterTest, TheSameLinesHoweverTheBytesArrive) {
    const QByteArray stream = "one\r\n\n  \ntwo\r\r\nthr\ree\nlast";
    const QByteArrayList expected{"one", "two\r", "thr\ree", "last"};
    for (qsizetype step = 1; step <= stream.size(); ++step) {
        Collector collector;
        for (qsizetype at = 0; at < stream.size(); at += step)
            collector.feed(stream.mid(at, step));
        collector.finish();
        EXPECT_EQ(collector.lines, expected) << step;
    }
}

TEST(LineSplitterTest, AnOverlongLineIsRefusedOnceAndTheNextOneCounts) {
    Collector collector;
    const QByteArray half(LineSplitter::longestLine / 2, 'x');
    collector.feed(half + half + '\n');  // exactly the limit
    EXPECT_EQ(collector.lines.size(), 1);
    EXPECT_EQ(collector.refused, 0);
    for (int i = 0; i < 5; ++i)
        collector.feed(half);
    EXPECT_EQ(collector.refused, 1);
    collector.feed("tail\nnext\n");
    EXPECT_EQ(collector.refused, 1);
    ASSERT_EQ(collector.lines.size(), 2);
    EXPECT_EQ(collector.lines[1], "next");
}

}  // namespace

}  // namespace wirepane
