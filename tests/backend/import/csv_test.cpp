// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/csv.h"

#include "tests/support/qt_printers.h"

#include <gtest/gtest.h>

namespace wirepane {
namespace {

// Every record as "line:field|field", with a "!" behind one whose quote is never closed. The text comes in
// pieces of so many characters.
QString readOut(QStringView csv, qsizetype pieceSize) {
    QStringList records;
    CsvReader reader([rest = csv, pieceSize]() mutable {
        const QString piece = rest.left(pieceSize).toString();
        rest = rest.sliced(piece.size());
        return piece;
    });
    while (const auto record = reader.next())
        records += QString::number(record->line) + u':' + record->fields.join(u'|') +
                   (record->fault ? QStringLiteral("!") : QString());
    EXPECT_EQ(reader.position(), csv.size());
    return records.join(u' ');
}

TEST(Csv, SplitsRecordsAndFields) {
    const std::vector<std::pair<QStringView, QStringView>> rows{
        {u"", u""},
        {u"\n\r\n\n", u""},
        {u"a,b", u"1:a|b"},
        {u"\ufeffa,b\n", u"1:a|b"},
        {u"a,b\r\nc,d\re,f\n", u"1:a|b 2:c|d 3:e|f"},
        {u"a\n\nb", u"1:a 3:b"},
        {u",\n", u"1:|"},
        {u"a,", u"1:a|"},
        {u"\"a,b\",c", u"1:a,b|c"},
        {u"\"say \"\"x\"\"\",\"\"", u"1:say \"x\"|"},
        {u"\"two\nlines\",x\nnext", u"1:two\nlines|x 3:next"},
        {u"\"two\r\nlines\"\nnext", u"1:two\r\nlines 3:next"},
        {u"a\"b,c\"\nd", u"1:a\"b|c\" 2:d"},
        {u"\"a\"b,c", u"1:ab|c"},
        {u" \"a\"", u"1: \"a\""},
        {u"a\n\"open,b\nc", u"1:a 2:open,b\nc!"},
        {u"\"", u"1:!"},
        {u"\"\"\"", u"1:\"!"},
    };
    for (const auto& [csv, expected] : rows) {
        for (const qsizetype pieceSize : {1, 2, 3, 1000})
            EXPECT_EQ(readOut(csv, pieceSize), expected) << qPrintable(csv.toString());
    }
}

}  // namespace
}  // namespace wirepane
