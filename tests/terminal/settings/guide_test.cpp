// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The guide says the same in every language.
#include "tests/support/chinese_text.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QStringList linesOf(const QString& name) {
    QFile file(QStringLiteral(WIREPANE_SOURCES "/docs/guide/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return QString::fromUtf8(file.readAll()).split(u'\n');
}

// What does not depend on the language, a text for each section: how its lines begin, pictures, links, keys.
std::vector<std::string> outline(const QString& name) {
    static const QRegularExpression part(
        uR"((?:^(?:#+ |\d+\. |- |\|))|\]\([^)]*\)|`(?:Ctrl|Alt|Shift|F\d|Enter|Esc|Menu)[^`]*`)"_s);
    static const QRegularExpression folder(u"pictures\\w*/"_s);
    QList<QStringList> sections;
    for (const QString& line : linesOf(name)) {
        if (line.startsWith(u'#'))
            sections.emplace_back();
        for (auto parts = part.globalMatch(line); parts.hasNext();)
            sections.last() += parts.next().captured().remove(folder);
    }
    std::vector<std::string> texts;
    for (QStringList& section : sections) {
        section.sort();  // each language puts the keys of a sentence in an order of its own
        texts.push_back(section.join(u' ').toStdString());
    }
    return texts;
}

TEST(GuideTest, HasTheSameSectionsInEveryLanguage) {
    const std::vector<std::string> english = outline(u"guide.md"_s);
    ASSERT_GT(english.size(), 5U);
    for (const QString& code : {u"zh-TW"_s, u"zh-CN"_s}) {
        const QString name = u"guide_%1.md"_s.arg(QString(code).replace(u'-', u'_'));
        EXPECT_EQ(outline(name), english) << name.toStdString();
        QString text = linesOf(name).join(u'\n');
        text.remove(QRegularExpression(u"`[^`]*`|\\]\\([^)]*\\)"_s));
        EXPECT_EQ(strangeParts(text, code).join(u" | "_s).toStdString(), "");
    }
}

}  // namespace

}  // namespace wirepane
