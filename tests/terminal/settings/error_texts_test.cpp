// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What errors say in the terminal, and that every code says it in every language.
#include "backend/import/import_errors.h"
#include "backend/network/network_errors.h"
#include "terminal/session/import_report.h"
#include "terminal/translations/languages.h"
#include "terminal/translations/shown_text.h"
#include "tests/support/qt_printers.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using Texts = QHash<QString, QString>;  // by key

const QString sources = QStringLiteral(WIREPANE_SOURCES);

// The codes of the sources with their English sentences; each place that names a key must be one.
Texts codesInSources() {
    static const QRegularExpression code(
        uR"re(ErrorCode\s+\w+\{\s*"(ERROR_\w+)",\s*((?:u"(?:[^"\\]|\\.)*"\s*)+)\})re"_s);
    static const QRegularExpression literal(uR"re(u"((?:[^"\\]|\\.)*)")re"_s);
    Texts found;
    for (const QString& room : {u"backend"_s, u"wire"_s, u"terminal"_s}) {
        QDirIterator files(sources + u'/' + room, {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            qsizetype inFile = 0;
            for (auto codes = code.globalMatch(text); codes.hasNext(); ++inFile) {
                const auto match = codes.next();
                QString english;
                for (auto parts = literal.globalMatch(match.captured(2)); parts.hasNext();)
                    english += parts.next().captured(1);
                EXPECT_FALSE(found.contains(match.captured(1))) << match.captured(1).toStdString();
                found.insert(match.captured(1), english.replace(u"\\\""_s, u"\""_s));
            }
            EXPECT_EQ(text.count(u"\"ERROR_"_s), inFile) << file.fileName().toStdString();
        }
    }
    return found;
}

// The texts of errors in a language file.
Texts catalogue(const QString& language) {
    QFile file(
        u"%1/terminal/translations/wirepane_%2.ts"_s.arg(sources, QString(language).replace(u'-', u'_')));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader xml(&file);
    Texts texts;
    QString id;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == "message"_L1)
            id = xml.attributes().value("id"_L1).toString();
        else if (xml.isStartElement() && xml.name() == "translation"_L1 && id.startsWith("ERROR_"_L1))
            texts.insert(id, xml.readElementText());
    }
    return texts;
}

QSet<QString> placeholders(const QString& sentence) {
    static const QRegularExpression placeholder(u"%[1-9]"_s);
    QSet<QString> found;
    for (auto matches = placeholder.globalMatch(sentence); matches.hasNext();)
        found.insert(matches.next().captured());
    return found;
}

// That a sentence has as many placeholders as its code is given arguments, the compiler sees to.
TEST(ErrorTexts, EveryCodeHasItsSentenceInEveryLanguage) {
    const Texts codes = codesInSources();
    ASSERT_EQ(codes.value(u"ERROR_IMPORT_FILE_EMPTY"_s), u"The file is empty."_s);
    static const QRegularExpression word(u"[A-Za-z]{2}"_s);
    static const QRegularExpression han(u"\\p{Han}"_s);
    for (const QString& language : Languages::codes()) {
        const Texts texts = catalogue(language);
        EXPECT_EQ(QSet<QString>(texts.keyBegin(), texts.keyEnd()),
                  QSet<QString>(codes.keyBegin(), codes.keyEnd()))
            << language.toStdString();
        for (auto code = codes.begin(); code != codes.end(); ++code) {
            const QString text = texts.value(code.key());
            EXPECT_EQ(placeholders(text), placeholders(*code))
                << code.key().toStdString() << " in " << language.toStdString();
            if (language == u"en"_s)
                EXPECT_EQ(text, *code);
            else
                EXPECT_EQ(text.contains(han), code->contains(word)) << text.toStdString();
        }
    }
}

TEST(ErrorTexts, AnErrorIsToldInTheLanguageInForceAlsoByAnotherProgram) {
    using namespace import_errors;
    const Error wrongField =
        makeError<recordField>(u"headline %1"_s, makeError<aText>(), makeError<anObject>());
    struct Case {
        Error error;
        QStringList texts;  // in the order of Languages::codes()
    };
    const Case cases[] = {
        {makeError<fileEmpty>(), {u"The file is empty."_s, u"檔案是空的。"_s, u"文件为空。"_s}},
        {wrongField,
         {u"The field “headline %1” must be a text, not an object."_s,
          u"欄位「headline %1」必須是文字，而不是物件。"_s, u"字段“headline %1”必须是文本，而不是对象。"_s}},
        {makeError<import_report::filesNotRead>(1, 1),
         {u"1 of 1 file could not be read."_s, u"1 個檔案中有 1 個無法讀取。"_s,
          u"1 个文件中有 1 个无法读取。"_s}},
        {makeError<network_errors::nothingTaken>(12, u"{a|b}"_s),
         {u"Of 12 items none can be taken, the first because: {a|b}"_s,
          u"12 個項目均無法採用，第一個的原因：{a|b}"_s, u"12 个项目均无法采用，第一个的原因：{a|b}"_s}},
        {makeError<import_report::itemRejected>(u"a.jsonl"_s, makeError<atLine>(12), wrongField),
         {u"a.jsonl: line 12: The field “headline %1” must be a text, not an object."_s,
          u"a.jsonl：第 12 行：欄位「headline %1」必須是文字，而不是物件。"_s,
          u"a.jsonl：第 12 行：字段“headline %1”必须是文本，而不是对象。"_s}},
    };
    Languages languages;
    for (qsizetype i = 0; i < Languages::codes().size(); ++i) {
        ASSERT_TRUE(languages.use(Languages::codes().at(i)));
        for (const Case& c : cases) {
            EXPECT_EQ(shownText(c.error), c.texts.at(i));
            EXPECT_EQ(shownText(valueFrom(valueLine(c.error))), c.texts.at(i));
            EXPECT_EQ(sentence(c.error), c.texts.at(0)) << "English, whatever is in force";
        }
        for (const QString& line : {u"no value"_s, u"{\"code\": 1}"_s, u"[]"_s, u"50 %1"_s})
            EXPECT_EQ(shownText(valueFrom(line)), line);
    }
    EXPECT_TRUE(languages.use(u"en"_s));
}

}  // namespace

}  // namespace wirepane
