// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What commands do with copies of a store that were damaged by chance. WIREPANE_DAMAGED is the number of
// copies, a few without it, WIREPANE_SEED which ones; the figures are printed.
#include "backend/store/store_reader.h"
#include "tests/terminal/program/program_runner.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cctype>
#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

constexpr int fewCopies = 14;
constexpr unsigned ordinarySeed = 20260302;
constexpr qsizetype pageSize = 4096;
const QString now = u"2026-03-02T23:00:00"_s;

using Random = std::mt19937;

qsizetype below(Random& random, qsizetype end) {
    return static_cast<qsizetype>(random() % static_cast<unsigned>(end));
}

QByteArray noise(Random& random, qsizetype size) {
    QByteArray bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

void put(QByteArray& store, qsizetype at, const QByteArray& bytes) {
    store.replace(at, bytes.size(), bytes);
}

// What happens to the file.
struct Kind {
    const char* name;
    void (*damage)(QByteArray& store, Random& random);
    // A letter that became its capital is another text, and the same one for the search index and for
    // `check`.
    bool mayChangeCase = false;
};
constexpr std::array kinds{
    Kind{"single bits",
         [](QByteArray& store, Random& random) {
             for (int i = 0; i < 20; ++i) {
                 char& byte = store[below(random, store.size())];
                 byte = static_cast<char>(byte ^ (1 << below(random, 8)));
             }
         },
         true},
    Kind{"bytes here and there",
         [](QByteArray& store, Random& random) {
             for (int i = 0; i < 40; ++i)
                 put(store, below(random, store.size()), noise(random, 1));
         },
         true},
    Kind{"a sector of noise",
         [](QByteArray& store, Random& random) {
             put(store, below(random, store.size() / 512) * 512, noise(random, 512));
         }},
    Kind{"a page of zeros",
         [](QByteArray& store, Random& random) {
             put(store, below(random, store.size() / pageSize) * pageSize, QByteArray(pageSize, '\0'));
         }},
    Kind{"a page in another's place",
         [](QByteArray& store, Random& random) {
             const qsizetype from = below(random, store.size() / pageSize) * pageSize;
             put(store, below(random, store.size() / pageSize) * pageSize, store.mid(from, pageSize));
         }},
    Kind{"the end cut off",
         [](QByteArray& store, Random& random) {
             store.truncate(pageSize + below(random, store.size() - pageSize));
         }},
    Kind{"letters of a text",
         [](QByteArray& store, Random& random) {
             for (int changed = 0; changed < 3;) {
                 const qsizetype at = below(random, store.size() - 8);
                 const QByteArray text = store.mid(at, 8);
                 if (!std::all_of(text.begin(), text.end(),
                                  [](char c) { return std::isalpha(uchar(c)) || c == ' '; }))
                     continue;
                 if (text[3] == 'q' || text[3] == 'Q')
                     continue;
                 put(store, at + 3, "q");
                 ++changed;
             }
         }},
};

// What a command did with a copy.
struct Deed {
    int status = 0;
    QByteArray result;
};
// ... beside what it does with the whole store.
struct Count {
    int same = 0;
    int refused = 0;  // status 2
    int other = 0;
};

class DamagedStoreTest : public testing::Test {
protected:
    static QByteArray bytesOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void makeStore() {
        const ProgramOutcome made = runProgram({u"sample"_s, u"--store"_s, store, u"--days"_s, u"2"_s,
                                                u"--per-day"_s, u"150"_s, u"--now"_s, now});
        ASSERT_EQ(made.status, 0) << made.err.toStdString();
        QByteArray wire;
        for (int i = 0; i < 60; ++i)
            wire += ninjsItem(u"u:%1"_s.arg(i), u"Headline %1"_s.arg(i),
                              u"Story %1 of the day."_s.arg(i).repeated(20), u"2026-03-02T01:00:00Z"_s) +
                    '\n';
        ASSERT_EQ(
            runProgram({u"import"_s, u"--store"_s, store, scratch.write(u"first.jsonl"_s, wire)}).status, 0);
        // The first half comes again, some of it later than before; the rest is new.
        wire.clear();
        for (int i = 0; i < 60; ++i)
            wire += ninjsItem(u"u:%1"_s.arg(i < 30 ? i : 100 + i), u"Headline %1"_s.arg(i),
                              u"Corrected %1."_s.arg(i),
                              i % 3 == 0 ? u"2026-03-02T02:00:00Z"_s : u"2026-03-02T01:00:00Z"_s) +
                    '\n';
        second = scratch.write(u"second.jsonl"_s, wire);
    }

    void putCopy(const QByteArray& bytes) {
        for (const QString& suffix : {u""_s, u"-wal"_s, u"-shm"_s})
            QFile::remove(copy + suffix);
        scratch.write(u"copy.wirepane"_s, bytes);
    }
    Deed run(const QByteArray& bytes, const QStringList& arguments, const QString& written = {}) {
        putCopy(bytes);
        if (!written.isEmpty())
            QFile::remove(written);
        const ProgramOutcome outcome = runProgram(arguments);
        EXPECT_TRUE(outcome.status >= 0 && outcome.status <= 2) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(outcome.status != 2 || !outcome.err.isEmpty());
        return {outcome.status, outcome.out.toUtf8() + (written.isEmpty() ? QByteArray() : bytesOf(written))};
    }
    // search, export, import
    std::array<Deed, 3> deeds(const QByteArray& bytes) {
        const QString news = scratch.path(u"news.txt"_s);
        return {run(bytes, {u"search"_s, u"--store"_s, copy, u"--any"_s, u"of"_s, u"公司"_s}),
                run(bytes,
                    {u"export"_s, u"--store"_s, copy, u"--utf8"_s, u"--day"_s, u"20260302"_s, u"--now"_s, now,
                     news},
                    news),
                run(bytes, {u"import"_s, u"--store"_s, copy, u"--now"_s, now, second})};
    }
    bool isSeenByCheck(const QByteArray& bytes) {
        putCopy(bytes);
        return runProgram({u"check"_s, u"--store"_s, copy}).status != 0;
    }

    Scratch scratch;
    QString store = scratch.path(u"news.wirepane"_s);
    QString copy = scratch.path(u"copy.wirepane"_s);
    QString second;
};

int numberOf(const char* variable, int otherwise) {
    bool given = false;
    const int number = qEnvironmentVariableIntValue(variable, &given);
    return given ? number : otherwise;
}

TEST_F(DamagedStoreTest, WhatIsNotRefusedIsSeenByCheck) {
    makeStore();
    const QByteArray good = bytesOf(store);
    ASSERT_FALSE(isSeenByCheck(good));
    const auto expected = deeds(good);
    for (const Deed& deed : expected)
        ASSERT_EQ(deed.status, 0);

    Random random(static_cast<unsigned>(numberOf("WIREPANE_SEED", ordinarySeed)));
    struct Row {
        int copies = 0;
        std::array<Count, 3> counts;
        int other = 0;  // copies that any command gave other results for
        int seen = 0;   // by check
        int otherUnseen = 0;
    };
    std::array<Row, kinds.size()> rows;
    const int copies = numberOf("WIREPANE_DAMAGED", fewCopies);
    for (int i = 0; i < copies; ++i) {
        const std::size_t kind = static_cast<std::size_t>(i) % kinds.size();
        QByteArray bytes = good;
        kinds[kind].damage(bytes, random);
        Row& row = rows[kind];
        ++row.copies;
        const auto done = deeds(bytes);
        const bool seen = isSeenByCheck(bytes);
        row.seen += seen ? 1 : 0;
        bool anyOther = false;
        for (std::size_t command = 0; command < done.size(); ++command) {
            const bool same = done[command].status == expected[command].status &&
                              done[command].result == expected[command].result;
            const bool refused = done[command].status == 2;
            ++(same      ? row.counts[command].same
               : refused ? row.counts[command].refused
                         : row.counts[command].other);
            anyOther = anyOther || (!same && !refused);
        }
        row.other += anyOther ? 1 : 0;
        row.otherUnseen += anyOther && !seen ? 1 : 0;
    }
    std::printf("%-26s %6s %18s %18s %18s %7s %7s %7s\n", "same/refused/other", "copies", "search", "export",
                "import", "other", "seen", "unseen");
    for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
        const Row& row = rows[kind];
        std::printf("%-26s %6d", kinds[kind].name, row.copies);
        for (const Count& count : row.counts)
            std::printf(" %8d/%4d/%4d", count.same, count.refused, count.other);
        std::printf(" %7d %7d %7d\n", row.other, row.seen, row.otherUnseen);
        EXPECT_TRUE(row.otherUnseen == 0 || kinds[kind].mayChangeCase) << kinds[kind].name;
    }
}

}  // namespace

}  // namespace wirepane
