// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/s_date_time_ctrl.h"
#include "terminal/translations/languages.h"
#include "terminal/translations/stored_names.h"
#include "terminal/translations/terminal_text.h"
#include "terminal/translations/text_table.h"
#include "tests/support/chinese_text.h"

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString sources = QStringLiteral(WIREPANE_SOURCES);

QHash<QString, QString> catalogue(const QString& code) {
    QFile file(u"%1/terminal/translations/wirepane_%2.ts"_s.arg(sources, QString(code).replace(u'-', u'_')));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader xml(&file);
    QHash<QString, QString> texts;
    QString id;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == "message"_L1) {
            id = xml.attributes().value("id"_L1).toString();
            EXPECT_FALSE(texts.contains(id)) << id.toStdString();
        } else if (xml.isStartElement() && xml.name() == "translation"_L1) {
            texts.insert(id, xml.readElementText());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

// The keys that the rooms' sources name.
QSet<QString> keysInSources() {
    static const QRegularExpression key(u"\"((?:IDS|IDC|TERMINAL)_[A-Za-z0-9_-]+)\""_s);
    QSet<QString> found;
    for (const QString& room : {u"host"_s, u"headline_list"_s, u"story"_s, u"output"_s, u"search"_s,
                                u"news_view"_s, u"terminal"_s}) {
        QDirIterator files(sources + u'/' + room, {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            auto matches = key.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext())
                found.insert(matches.next().captured(1));
        }
    }
    return found;
}

TEST(TranslationsTest, EveryKeyOfTheSourcesHasATextInEveryLanguage) {
    const QSet<QString> used = keysInSources();
    ASSERT_TRUE(used.contains(u"IDS_NEWSCTRLVIEW_STRING_NEWS"_s));
    ASSERT_TRUE(used.contains(u"TERMINAL_QUIT"_s));
    for (const QString& code : Languages::codes()) {
        const auto texts = catalogue(code);
        for (const QString& key : used)
            EXPECT_FALSE(texts.value(key).isEmpty()) << key.toStdString() << " in " << code.toStdString();
    }
}

TEST(TranslationsTest, TheCatalogueInForceGivesItsTexts) {
    Languages languages;
    for (const QString& code : Languages::codes()) {
        const auto texts = catalogue(code);
        ASSERT_TRUE(languages.use(code)) << code.toStdString();
        for (auto text = texts.begin(); text != texts.end(); ++text)
            EXPECT_EQ(qtTrId(text.key().toUtf8().constData()), text.value()) << text.key().toStdString();
    }
    EXPECT_EQ(QCoreApplication::translate("QPrintDialog", "&Print"), u"打印(&P)"_s) << "Qt's own texts";
    EXPECT_EQ(QCoreApplication::translate("QAbstractFileIconProvider", "Folder", "All other platforms"),
              u"文件夹"_s);
    EXPECT_EQ(ToolkitTexts().translate("QLineEdit", "Select All", nullptr, -1), u"全选"_s)
        << "without Qt's catalogues";
    SDateTimeCtrl picker;
    EXPECT_EQ(picker.calendarWidget()->locale().monthName(3), u"三月"_s);
    ASSERT_TRUE(languages.use(u"en"_s));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(picker.calendarWidget()->locale().monthName(3), u"March"_s) << "follows a change";
    ASSERT_TRUE(languages.use(u"zh-CN"_s));
    EXPECT_FALSE(languages.use(u"de"_s));
    EXPECT_EQ(languages.current(), u"zh-CN"_s);
    EXPECT_EQ(terminalText(TextId::LanguageSimplifiedChinese), u"简体中文"_s);
}

// Two texts say the same in both kinds of characters, and one is for a system that has no Chinese at all.
TEST(TranslationsTest, ChineseTextsAreChineseAndOfTheirKind) {
    const QSet<QString> other{u"IDS_NEWSCTRLVIEW_STRING_REPLASE_NEWS"_s,
                              u"IDS_NEWSCTRLVIEW_STRING_REPLASE_MESSAGE"_s, u"TERMINAL_NO_CHINESE_FONT"_s};
    for (const QString& code : {u"zh-TW"_s, u"zh-CN"_s}) {
        const auto texts = catalogue(code);
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            const QStringList strange =
                other.contains(text.key()) ? QStringList() : strangeParts(*text, code);
            EXPECT_TRUE(strange.isEmpty()) << text.key().toStdString() << " in " << code.toStdString() << ": "
                                           << strange.join(u" | "_s).toStdString();
        }
    }
}

TEST(TranslationsTest, TablesOfTextsAreWholeAndTellNamesApart) {
    Languages languages;
    for (const QString& name : {u"stored_names"_s, u"toolkit_texts"_s}) {
        QFile file(u"%1/terminal/translations/%2.tsv"_s.arg(sources, name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const TextTable table(file.fileName());
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        QHash<QString, QSet<QString>> seen;
        for (const QString& line : lines.filter(QRegularExpression(u"^[^#]"_s)).mid(1)) {
            const QStringList texts = line.split(u'\t');
            ASSERT_EQ(texts.size(), Languages::codes().size() + 1) << line.toStdString();
            for (qsizetype i = 1; i < texts.size(); ++i) {
                const QString code = Languages::codes().at(i - 1);
                ASSERT_TRUE(languages.use(code));
                EXPECT_EQ(table.find(texts.front()), texts.at(i));
                EXPECT_FALSE(seen[code].contains(texts.at(i))) << line.toStdString();
                seen[code].insert(texts.at(i));
                EXPECT_TRUE(i == 1 || strangeParts(texts.at(i), code).isEmpty()) << line.toStdString();
            }
        }
    }
    EXPECT_EQ(shownName(u"a name of its own"_s), u"a name of its own"_s);
}

TEST(TranslationsTest, LanguagesHaveTheSamePlaceholdersAndEdges) {
    const auto english = catalogue(u"en"_s);
    for (const QString& code : {u"zh-TW"_s, u"zh-CN"_s}) {
        const auto texts = catalogue(code);
        EXPECT_EQ(QSet<QString>(texts.keyBegin(), texts.keyEnd()),
                  QSet<QString>(english.keyBegin(), english.keyEnd()));
        for (auto text = english.begin(); text != english.end(); ++text)
            EXPECT_EQ(texts.value(text.key()).count(u"%1"_s), text->count(u"%1"_s))
                << text.key().toStdString();
    }
    // A view whose caption is this one is opened as a view of symbol news.
    for (const QString& code : Languages::codes()) {
        const auto texts = catalogue(code);
        EXPECT_NE(texts[u"IDS_NEWSCTRLVIEW_STRING_NEWS"_s].toLower(),
                  texts[u"IDS_MMSEXTENSION-MAINFRM_NEWSCTRLVIEW"_s].toLower());
    }
}

TEST(TranslationsTest, CountsOfOneReadAsOne) {
    struct Case {
        QString text;
        qint64 count;
        QString shown;
    };
    const Case cases[] = {
        {u"%1 {item was|items were} left"_s, 1, u"1 item was left"_s},
        {u"%1 {item was|items were} left"_s, 0, u"0 items were left"_s},
        {u"%1 {item was|items were} left"_s, 12345, u"12,345 items were left"_s},
        {u"%1 則新聞"_s, 1, u"1 則新聞"_s},
        {u"a | b } { %1"_s, 2, u"a | b } { 2"_s},
    };
    for (const Case& c : cases)
        EXPECT_EQ(countText(c.text, c.count), c.shown);
    const QString of = u"%1 of %2 {service|services}"_s;
    EXPECT_EQ(countText(of.arg(1), 1), u"1 of 1 service"_s);
    EXPECT_EQ(countText(of.arg(1), 5), u"1 of 5 services"_s);
}

}  // namespace

}  // namespace wirepane
