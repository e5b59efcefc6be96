// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Sources that are longer than the pieces that they are read in: no piece may end anywhere that shows.
#include "backend/import/mapping.h"
#include "tests/backend/import/read_all.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

constexpr int records = 400;

enum class Form { Lines, List, Table, MappedTable, MappedList };

// Of every length, so that pieces end at every place of some record.
QString storyOf(int number, bool withPairs) {
    return (withPairs ? u"𠮷\"\"\\n"_s : u"電\"\"\\n"_s).repeated(number % 50 + 20) + QString(number, u'x');
}

QString recordOf(Form form, int number, bool withPairs) {
    const QString story = storyOf(number, withPairs);
    if (form == Form::Table)
        return u"16,%1,\"名%2\"\r\n"_s.arg(number).arg(story.left(100).replace("\\n"_L1, " "_L1));
    if (form == Form::MappedTable)
        return u"%1,\"標題,%1\",\"%2\",2004-01-02\r\n"_s.arg(number).arg(
            QString(story).replace("\\n"_L1, "\r\n"_L1));
    const QString text = QString(story).replace("\"\""_L1, "\\\""_L1);
    return form == Form::MappedList
               ? u"{\"id\": %1, \"title\": \"標題,%1\", \"text\": \"%2\", \"date\": \"2004-01-02\"}"_s
                     .arg(number)
                     .arg(text)
               : u"{\"uri\": \"%1\", \"headline\": \"標題,%1\", \"body_text\": \"%2\", \"versioncreated\": \"2004\"}"_s
                     .arg(number)
                     .arg(text);
}

QString sourceOf(Form form, bool withPairs) {
    QStringList all;
    for (int i = 1; i <= records; ++i)
        all += recordOf(form, i, withPairs);
    switch (form) {
        case Form::Lines:
            return all.join(u'\n');
        case Form::List:
        case Form::MappedList:
            return u'[' + all.join(u",\n"_s) + u']';
        case Form::Table:
            return u"market,code,name\r\n"_s + all.join(QString());
        case Form::MappedTable:
            break;
    }
    return u"id,title,text,date\r\n"_s + all.join(QString());
}

ReadOptions optionsFor(Form form) {
    ReadOptions options;
    if (form == Form::MappedTable || form == Form::MappedList)
        options.mapping = std::make_shared<const Mapping>(
            Mapping::parse(
                R"({"identity": "id", "title": "title", "story": "text", "time": {"date": "date"}})")
                .value());
    return options;
}

void expectWhole(Form form, const ReadOut& out, bool withPairs) {
    ASSERT_EQ(out.items.size(), std::size_t(records)) << qPrintable(out.complaints() + out.refusal);
    EXPECT_TRUE(out.rejections.empty()) << qPrintable(out.complaints());
    for (int i = 1; i <= records; ++i) {
        const QString story = storyOf(i, withPairs).replace("\"\""_L1, "\""_L1);
        if (form == Form::Table) {
            const QString name =
                storyOf(i, withPairs).left(100).replace("\\n"_L1, " "_L1).replace("\"\""_L1, "\""_L1);
            ASSERT_EQ(out.symbol(std::size_t(i - 1)).name, (u"名"_s + name).simplified());
            continue;
        }
        ASSERT_EQ(out.news(std::size_t(i - 1)).title, u"標題,%1"_s.arg(i));
        // Lines are joined, which wire_form_test.cpp tells.
        QString words = *out.news(std::size_t(i - 1)).story;
        ASSERT_EQ(words.remove(u' '), QString(story).remove("\\n"_L1)) << int(form) << ' ' << i;
    }
}

TEST(LongSources, AreReadAsIfTheyWereInOnePiece) {
    for (const Form form : {Form::Lines, Form::List, Form::Table, Form::MappedTable, Form::MappedList}) {
        for (const QByteArray& encoding : {QByteArray("UTF-8"), QByteArray("UTF-16LE"),
                                           QByteArray("UTF-16BE"), QByteArray("windows-950")}) {
            const bool withPairs = encoding.startsWith("UTF");
            if (!withPairs && (form == Form::Lines || form == Form::List))
                continue;  // JSON is Unicode
            QStringEncoder encoder(encoding.constData(), QStringConverter::Flag::WriteBom);
            SCOPED_TRACE(encoding.toStdString() + " " + std::to_string(int(form)));
            expectWhole(form, readAll(encoder(sourceOf(form, withPairs)), optionsFor(form)), withPairs);
        }
    }
}

TEST(LongSources, SayWhatTheyEndWith) {
    const QByteArray list = sourceOf(Form::List, true).toUtf8();
    const QByteArray blanks(100'000, ' ');
    const std::vector<std::pair<QByteArray, QString>> ends{
        {list + blanks, {}},
        {list + blanks + "x", u"the end: There is something behind the end of the list."_s},
        {list.first(list.size() - 1), u"item 400: The list has no end: “]” is missing."_s},
    };
    for (const auto& [source, complaints] : ends) {
        const auto out = readAll(source);
        EXPECT_EQ(out.items.size(), std::size_t(records));
        EXPECT_EQ(out.complaints(), complaints);
    }
    const auto open = readAll(sourceOf(Form::Table, true).toUtf8() + "16,\"" + blanks);
    EXPECT_EQ(open.complaints(),
              u"line 402: A quote is opened and never closed; nothing behind it is read."_s);
    EXPECT_EQ(readAll(blanks + "<html>", optionsFor(Form::MappedTable)).refusal,
              readAll("<html>", optionsFor(Form::MappedTable)).refusal);
    EXPECT_EQ(readAll(blanks, optionsFor(Form::MappedTable)).refusal, u"The file is empty.");
}

}  // namespace
}  // namespace wirepane
