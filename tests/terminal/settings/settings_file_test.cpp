// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/settings_file.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class SettingsFileTest : public testing::Test {
protected:
    QString older() const { return folder.filePath(u"wirepane.ini"_s); }
    QString path() const { return folder.filePath(u"wirepane.json"_s); }

    void write(const QByteArray& bytes, const QString& name = u"wirepane.json"_s) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray content(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
};

TEST_F(SettingsFileTest, KeepsOddTextsNamesAndListsThroughAFile) {
    const QList<QJsonValue> values{
        u"plain"_s,
        u""_s,
        u"back\\slash, comma; \"quotes\" = 'x' % [brackets]"_s,
        u"line\r\nbreaks\tand \u0001 control"_s,
        u"臺積電 上漲 🙂"_s,
        true,
        -2147483648.0,
        QJsonArray{u"a,b"_s, u""_s, u"台"_s},
        QJsonArray{},
    };
    const QStringList names{u"plain"_s,     u"a/b"_s, u"a\\b"_s, u"!RVNEWS_NEWSSEARCH_KEYWORD"_s,
                            u"General"_s,   u"%2F"_s, u""_s,     u"鍵"_s,
                            u"with blank"_s};
    ASSERT_EQ(values.size(), names.size());
    {
        SettingsFile file(path());
        for (qsizetype i = 0; i < names.size(); ++i) {
            file.setValue(u"group"_s, names[i], values[i]);
            file.setValue(names[i], u"name"_s, values[i]);
        }
        ASSERT_TRUE(file.save());
    }
    const SettingsFile file(path());
    EXPECT_TRUE(file.message().isEmpty()) << file.message().toStdString();
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_EQ(file.value(u"group"_s, names[i]), values[i]) << names[i].toStdString();
        EXPECT_EQ(file.value(names[i], u"name"_s), values[i]) << names[i].toStdString();
    }
}

TEST_F(SettingsFileTest, SetsADamagedFileAsideAndStartsFromNothing) {
    const QList<QByteArray> damaged{
        R"({"group": {"name": 1, "other": "half)",  // cut inside a value
        R"({"group": {"name": 1})",                 // cut behind one
        QByteArray(512, '\0'),                      // what some file systems leave after a power cut
        "",                                         // or this
        R"([{"group": {"name": 1}}])",              // no object
        "[group]\nname=1\n",
        QByteArray("\x89PNG\r\n\x1a\n binary data", 20),
    };
    int number = 0;
    for (const QByteArray& bytes : damaged) {
        write(bytes);
        SettingsFile file(path());
        ++number;
        const QString aside = u"wirepane.json.damaged-%1"_s.arg(number);
        EXPECT_TRUE(file.message().contains(aside)) << number << file.message().toStdString();
        EXPECT_EQ(content(aside), bytes) << number;
        EXPECT_TRUE(file.value(u"group"_s, u"name"_s).isUndefined());
        file.setValue(u"group"_s, u"name"_s, number);
        ASSERT_TRUE(file.save());
        EXPECT_EQ(SettingsFile(path()).value(u"group"_s, u"name"_s), number);
    }
}

TEST_F(SettingsFileTest, KeepsWhatItDoesNotKnowAndWhatOthersSaved) {
    write(
        R"({"format": 7, "later": {"deep": [{"a": null}]}, "group": {"name": 1, "unknown": "x", "gone": 2}})");
    SettingsFile file(path());
    SettingsFile other(path());
    other.setValue(u"group"_s, u"theirs"_s, u"kept"_s);
    other.setValue(u"group"_s, u"name"_s, 3);
    ASSERT_TRUE(other.save());
    file.setValue(u"group"_s, u"name"_s, 2);
    file.setValue(u"group"_s, u"gone"_s, QJsonValue::Undefined);
    ASSERT_TRUE(file.save());
    const QByteArray expected =
        R"({"format":7,"later":{"deep":[{"a":null}]},"group":{"name":2,"unknown":"x","theirs":"kept"}})";
    EXPECT_EQ(QJsonDocument::fromJson(content(u"wirepane.json"_s)), QJsonDocument::fromJson(expected));
    // What was damaged meanwhile is set aside as well, and nothing of ours is missing.
    write("{");
    file.setValue(u"group"_s, u"name"_s, 4);
    ASSERT_TRUE(file.save());
    EXPECT_EQ(content(u"wirepane.json.damaged-1"_s), "{");
    EXPECT_EQ(SettingsFile(path()).value(u"group"_s, u"theirs"_s), u"kept"_s);
}

TEST_F(SettingsFileTest, RemovesTheGroupsThatBeginSo) {
    SettingsFile file(path());
    for (const QString& group : {u"view.1"_s, u"view.1.2"_s, u"view.2"_s})
        file.setValue(group, u"name"_s, 1);
    ASSERT_TRUE(file.save());
    file.removeGroups(u"view.1"_s);
    ASSERT_TRUE(file.save());
    EXPECT_EQ(QJsonDocument::fromJson(content(u"wirepane.json"_s)).object().keys(), QStringList{u"view.2"_s});
}

// As an older program wrote it.
const QByteArray olderFile = R"([%25]
%25=null

[%General]
%25E9%258D%25B5="\"back\\\\slash; = %2F\""

[terminal]
fontSize=11
ratio=-0.5
scheme=\"dark\"
showNormalSearch=true

[view.0.0.4.main.TRVNewsCtrlView]
%2521RVNEWS%2520x%252Fy="[\"a,b\",\"\",\"line\\r\\nbreak\\u0001 🙂\"]"

[workspace]
views="[{\"place\":3,\"title\":\"Öl, \\\"50%\\\" & 石油\"}]"
)";

const QByteArray carriedOver = R"({
"": {"": null},
"General": {"鍵": "back\\slash; = %2F"},
"terminal": {"fontSize": 11, "ratio": -0.5, "scheme": "dark", "showNormalSearch": true},
"view.0.0.4.main.TRVNewsCtrlView": {"!RVNEWS x/y": ["a,b", "", "line\r\nbreak\u0001 🙂"]},
"workspace": {"views": [{"place": 3, "title": "Öl, \"50%\" & 石油"}]}})";

TEST_F(SettingsFileTest, CarriesAnOlderFileOverOnce) {
    write(olderFile, u"wirepane.ini"_s);
    for (const char* time : {"first", "second"}) {
        SettingsFile file(path(), older());
        EXPECT_TRUE(file.message().isEmpty()) << file.message().toStdString();
        EXPECT_EQ(QJsonDocument::fromJson(content(u"wirepane.json"_s)), QJsonDocument::fromJson(carriedOver))
            << time;
        EXPECT_EQ(content(u"wirepane.ini"_s), olderFile) << time;
        // What the older file says later on is nobody's.
        write("[terminal]\nfontSize=30\n", u"wirepane.ini"_s);
        EXPECT_EQ(SettingsFile(path(), older()).value(u"terminal"_s, u"fontSize"_s), 11) << time;
        write(olderFile, u"wirepane.ini"_s);
    }
    // A file that is damaged once is no reason to go back to it either.
    write("{");
    EXPECT_TRUE(SettingsFile(path(), older()).message().contains(u"wirepane.json.damaged-1"_s));
    const SettingsFile file(path(), older());
    EXPECT_TRUE(file.value(u"terminal"_s, u"fontSize"_s).isUndefined());
    EXPECT_TRUE(file.message().isEmpty());
}

TEST_F(SettingsFileTest, LeavesADamagedOlderFileAsItIs) {
    const QList<QByteArray> damaged{
        "[group]\nname=\"[1, 2\"\n",          // cut inside a value
        "[group]\nname=1\nno equals sign\n",  // cut inside a name
        QByteArray(700, '\0'),
        "[group]\nname=a, b\n",  // no JSON
    };
    for (const QByteArray& bytes : damaged) {
        write(bytes, u"wirepane.ini"_s);
        SettingsFile file(path(), older());
        EXPECT_TRUE(file.message().contains(older())) << bytes.toStdString() << file.message().toStdString();
        EXPECT_TRUE(file.value(u"group"_s, u"name"_s).isUndefined());
        EXPECT_FALSE(QFile::exists(path()));
        file.setValue(u"group"_s, u"name"_s, 1);
        ASSERT_TRUE(file.save());
        EXPECT_EQ(content(u"wirepane.ini"_s), bytes);
        EXPECT_TRUE(SettingsFile(path(), older()).message().isEmpty());
        QFile::remove(path());
    }
}

TEST_F(SettingsFileTest, NeverWritesAFileThatItCouldNotRead) {
    ASSERT_TRUE(QDir().mkdir(path()));
    SettingsFile file(path());
    EXPECT_FALSE(file.message().isEmpty());
    file.setValue(u"group"_s, u"name"_s, 1);
    EXPECT_FALSE(file.save());
    EXPECT_TRUE(QDir(path()).exists());
}

TEST_F(SettingsFileTest, SavesWholeOrNotAtAll) {
    {
        SettingsFile file(path());
        file.setValue(u"group"_s, u"name"_s, u"kept"_s);
        ASSERT_TRUE(file.save());
    }
    const QByteArray before = content(u"wirepane.json"_s);
    // A second writer reads the old file or the new one, and no half-written neighbour stays behind.
    SettingsFile file(path());
    file.setValue(u"group"_s, u"other"_s, QString(100000, u'x'));
    EXPECT_EQ(content(u"wirepane.json"_s), before);
    ASSERT_TRUE(file.save());
    EXPECT_EQ(SettingsFile(path()).value(u"group"_s, u"name"_s), u"kept"_s);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"wirepane.json"_s});
}

TEST_F(SettingsFileTest, SaysWhenItCannotBeSaved) {
    write({});
    SettingsFile file(folder.filePath(u"wirepane.json/below/wirepane.json"_s));
    file.setValue(u"group"_s, u"name"_s, 1);
    const Done done = file.save();
    ASSERT_FALSE(done);
    EXPECT_TRUE(sentence(done.error()).contains(folder.path())) << sentence(done.error()).toStdString();
}

}  // namespace

}  // namespace wirepane
