// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/data_table.h"

#include "sample_wire/phrasebook.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane::sample {
namespace {

// Reads a table of people: name, age, kind (cat or dog), tame.
QStringList readPeople(const std::vector<DataRow>& rows) {
    static constexpr QLatin1StringView kinds[] = {"cat"_L1, "dog"_L1};
    QStringList people;
    for (const DataRow& row : rows)
        people.append(u"%1 %2 %3 %4"_s.arg(row.text("name"_L1))
                          .arg(row.number("age"_L1))
                          .arg(row.choice("kind"_L1, kinds))
                          .arg(row.flag("tame"_L1)));
    return people;
}

TEST(DataTable, RowsAreReadByTheNamesOfTheirColumns) {
    QStringList faults;
    const std::vector<DataRow> table = readTable(
        u"t.tsv"_s, "# comment\nkind\tname\ttame\tage\n\ncat\t澄 川\t1\t7\n# more\ndog\tB\t0\t0\n", faults);
    EXPECT_EQ(readPeople(table), (QStringList{u"澄 川 7 0 1"_s, u"B 0 1 0"_s}));
    EXPECT_EQ(faults, QStringList());
}

TEST(DataTable, WhatIsWrongIsNamedByFileAndLine) {
    struct Row {
        QByteArray content, fault;
    };
    const QByteArray heads = "name\tage\tkind\ttame\n";
    const Row rows[] = {
        {"", "t.tsv, line 1: the table has no rows"},
        {heads, "t.tsv, line 2: the table has no rows"},
        {heads + "A\t1\tcat\t1\n# c\nB\t1\tcat\n", "t.tsv, line 4: 3 cells instead of 4"},
        {heads + "\t1\tcat\t1\n", "t.tsv, line 2: “name” is empty"},
        {heads + "A\tone\tcat\t1\n", "t.tsv, line 2: “age” is no number"},
        {heads + "A\t-1\tcat\t1\n", "t.tsv, line 2: “age” is no number"},
        {heads + "A\t1\tcow\t1\n", "t.tsv, line 2: “kind” cannot be “cow”"},
        {heads + "A\t1\tcat\tyes\n", "t.tsv, line 2: “tame” cannot be “yes”"},
        {"name\tage\tkind\nA\t1\tcat\n", "t.tsv, line 2: the table has no column “tame”"},
    };
    for (const Row& row : rows) {
        QStringList faults;
        readPeople(readTable(u"t.tsv"_s, row.content, faults));
        ASSERT_FALSE(faults.isEmpty()) << row.fault.toStdString();
        EXPECT_EQ(faults.constFirst().toStdString(), row.fault.toStdString());
    }
}

TEST(DataTable, AFileThatIsNotCarriedIsAFault) {
    QStringList faults;
    EXPECT_TRUE(carriedTable(u"nothing.tsv"_s, faults).empty());
    EXPECT_EQ(faults.size(), 1);
}

TEST(Template, ASlotThatNothingCanFillIsNamed) {
    EXPECT_EQ(Template(u"{co} rises {move}%", Mood::Any).unknownSlot(), QString());
    EXPECT_EQ(Template(u"{co} rises {mvoe}% {", Mood::Any).unknownSlot(), u"mvoe"_s);
}

}  // namespace
}  // namespace wirepane::sample
