// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/secrets.h"

#include "terminal/sources/keychain.h"
#include "terminal/sources/secret_file.h"
#include "terminal/sources/source_errors.h"
#include "tests/support/qt_printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

struct FakeKeychain : Keychain {
    void read(const QString& key, const std::function<void(const Result<QString>&)>& answer) override {
        if (kept.contains(key))
            answer(kept[key]);
        else
            answer(makeError<source_errors::secretMissing>(key));
    }
    void write(const QString& key, const QString& secret,
               const std::function<void(const Done&)>& answer) override {
        if (answers)
            kept[key] = secret;
        answer(answers ? Done(Nothing{}) : Done(makeError<source_errors::keychainSilent>()));
    }
    void remove(const QString& key, const std::function<void(const Done&)>& answer) override {
        if (answers)
            kept.remove(key);
        answer(answers ? Done(Nothing{}) : Done(makeError<source_errors::keychainSilent>()));
    }

    QHash<QString, QString> kept;
    bool answers = true;
};

// What is found under the name; of an error its code's key.
QString found(Secrets& secrets, const QString& name) {
    QString text;
    secrets.find(name, [&](const Result<QString>& secret) {
        text = secret ? secret.value() : QString::fromLatin1(secret.error().code->key);
    });
    return text;
}

QString keptAs(Secrets& secrets, const QString& name, const QString& secret) {
    QString stored;
    secrets.keep(name, secret,
                 [&](const Result<QString>& kept) { stored = kept ? kept.value() : QString(); });
    return stored;
}

// "gone", or of an error its code's key.
QString forgotten(Secrets& secrets, const QString& name) {
    QString answer;
    secrets.forget(name, [&](const Done& done) {
        answer = done ? u"gone"_s : QString::fromLatin1(done.error().code->key);
    });
    return answer;
}

TEST(Secrets, StandInTheKeychainOrInAFileThatOnlyTheUserCanRead) {
    const QTemporaryDir folder;
    const QString files = folder.filePath(u"secrets"_s);
    FakeKeychain keychain;
    Secrets secrets(keychain, files);
    EXPECT_EQ(keptAs(secrets, u"source-1"_s, u"ann:x"_s), u"source-1"_s);
    EXPECT_EQ(found(secrets, u"source-1"_s), u"ann:x"_s);
    EXPECT_FALSE(QDir(files).exists());
    keychain.answers = false;
    EXPECT_EQ(forgotten(secrets, u"source-1"_s), u"ERROR_SOURCES_KEYCHAIN_SILENT"_s);
    keychain.answers = true;
    EXPECT_EQ(forgotten(secrets, u"source-1"_s), u"gone"_s);
    EXPECT_EQ(found(secrets, u"source-1"_s), u"ERROR_SOURCES_SECRET_MISSING"_s);

    keychain.answers = false;
    const QString name = keptAs(secrets, u"../../../etc/x"_s, u"密碼\ntoken=y"_s);
    ASSERT_TRUE(name.startsWith(u"file:%1/"_s.arg(files))) << name.toStdString();
    EXPECT_EQ(found(secrets, name), u"密碼\ntoken=y"_s);
    struct stat status {};
    ASSERT_EQ(::stat(qPrintable(name.sliced(5)), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    ASSERT_EQ(::stat(qPrintable(files), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    EXPECT_EQ(forgotten(secrets, name), u"gone"_s);
    EXPECT_EQ(found(secrets, name), u"ERROR_SOURCES_SECRET_FILE_MISSING"_s);
}

TEST(Secrets, AFileThatOthersMayReadIsRefusedAndOneOfTheUsersStays) {
    const QTemporaryDir folder;
    FakeKeychain keychain;
    Secrets secrets(keychain, folder.filePath(u"secrets"_s));
    const QString path = folder.filePath(u"token"_s);
    ASSERT_TRUE(writeSecretFile(path, u"abc\r\n"_s));
    const std::pair<mode_t, QString> modes[] = {{0600, u"abc"_s},
                                                {0400, u"abc"_s},
                                                {0640, u"ERROR_SOURCES_SECRET_FILE_OPEN"_s},
                                                {0604, u"ERROR_SOURCES_SECRET_FILE_OPEN"_s},
                                                {0620, u"ERROR_SOURCES_SECRET_FILE_OPEN"_s}};
    for (const auto& [mode, expected] : modes) {
        ASSERT_EQ(::chmod(qPrintable(path), mode), 0);
        EXPECT_EQ(found(secrets, u"file:"_s + path), expected) << mode;
    }
    EXPECT_EQ(found(secrets, u"file:"_s + folder.path()), u"ERROR_SOURCES_SECRET_FILE_MISSING"_s);
    EXPECT_EQ(forgotten(secrets, u"file:"_s + path), u"gone"_s);
    EXPECT_TRUE(QFile::exists(path));
}

}  // namespace
}  // namespace wirepane
