// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/settings_file.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

class SettingsFileTest : public testing::Test {
protected:
    QString path() const { return folder.filePath(u"wirepane.ini"_s); }

    void write(const QByteArray& bytes) {
        QFile file(path());
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
        "[group]\nname=\"[1, 2\"\n",          // cut inside a value
        "[group]\nname=1\nno equals sign\n",  // cut inside a name
        QByteArray(512, '\0'),                // what some file systems leave after a power cut
        "[group]\nname=a, b\n",               // no JSON
        // Of another size than what was saved last: a file of equal size and moment is not read again.
        QByteArray("\x89PNG\r\n\x1a\n binary data", 20),
    };
    int number = 0;
    for (const QByteArray& bytes : damaged) {
        write(bytes);
        SettingsFile file(path());
        ++number;
        const QString aside = u"wirepane.ini.damaged-%1"_s.arg(number);
        EXPECT_TRUE(file.message().contains(aside)) << number << file.message().toStdString();
        EXPECT_EQ(content(aside), bytes);
        EXPECT_TRUE(file.value(u"group"_s, u"name"_s).isUndefined());
        file.setValue(u"group"_s, u"name"_s, number);
        ASSERT_TRUE(file.save());
        EXPECT_EQ(SettingsFile(path()).value(u"group"_s, u"name"_s), number);
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
    const QByteArray before = content(u"wirepane.ini"_s);
    // A second writer reads the old file or the new one, and no half-written neighbour stays behind.
    SettingsFile file(path());
    file.setValue(u"group"_s, u"other"_s, QString(100000, u'x'));
    EXPECT_EQ(content(u"wirepane.ini"_s), before);
    ASSERT_TRUE(file.save());
    EXPECT_EQ(SettingsFile(path()).value(u"group"_s, u"name"_s), u"kept"_s);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"wirepane.ini"_s});
}

TEST_F(SettingsFileTest, SaysWhenItCannotBeSaved) {
    write({});
    SettingsFile file(folder.filePath(u"wirepane.ini/below/wirepane.ini"_s));
    file.setValue(u"group"_s, u"name"_s, 1);
    const Done done = file.save();
    ASSERT_FALSE(done);
    EXPECT_TRUE(done.error().contains(folder.path())) << done.error().toStdString();
}

}  // namespace
