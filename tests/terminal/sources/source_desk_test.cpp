// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/source_desk.h"

#include "terminal/sources/keychain.h"
#include "terminal/sources/secrets.h"
#include "terminal/sources/source_errors.h"
#include "tests/support/qt_printers.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

// Answers when it is told to.
struct LateKeychain : Keychain {
    void read(const QString&, const std::function<void(const Result<QString>&)>&) override {}
    void write(const QString& key, const QString& secret,
               const std::function<void(const Done&)>& answer) override {
        waiting.push_back([this, key, secret, answer](bool works) {
            if (works)
                kept[key] = secret;
            answer(works ? Done(Nothing{}) : Done(makeError<source_errors::keychainSilent>()));
        });
    }
    void remove(const QString& key, const std::function<void(const Done&)>& answer) override {
        waiting.push_back([this, key, answer](bool works) {
            if (works)
                kept.remove(key);
            answer(works ? Done(Nothing{}) : Done(makeError<source_errors::keychainSilent>()));
        });
    }
    void answer(bool works) {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !waiting.empty(); }, 5000));
        std::exchange(waiting, {}).front()(works);
    }

    QHash<QString, QString> kept;
    std::vector<std::function<void(bool)>> waiting;
};

class SourceDeskTest : public testing::Test {
protected:
    // "done" or the error in English; empty: neither has come.
    static SourceDesk::Finished into(QString& said) {
        return [&said](const Done& done) { said = done ? u"done"_s : sentence(done.error()); };
    }
    bool hasSaid(const QString& said) const {
        return QTest::qWaitFor([&said] { return !said.isEmpty(); }, 5000);
    }
    static NetworkSource paper() {
        NetworkSource source;
        source.title = u"A Paper"_s;
        source.address = QUrl(u"https://paper.example/feed"_s);
        source.isTyped = true;
        return source;
    }

    QTemporaryDir folder;
    LateKeychain keychain;
    Secrets secrets{keychain, folder.filePath(u"secrets"_s)};
    SourceDesk desk{folder.filePath(u"news.db"_s), secrets};
};

TEST_F(SourceDeskTest, AddsASourceWhenItsSecretIsKeptAndNamesItWhereTheSecretStays) {
    SourceSecret token;
    token.authorisation = u"top"_s;
    QString said;
    desk.add(paper(), token,
             [&](const Result<QString>& name) { said = name ? u"done"_s : sentence(name.error()); });
    QTest::qWait(50);
    EXPECT_TRUE(desk.sources().empty()) << "a source without its secret would be refused by its host";
    keychain.answer(true);
    ASSERT_TRUE(hasSaid(said));
    ASSERT_EQ(said, u"done"_s);
    NetworkSource source = desk.sources().front().source;
    ASSERT_EQ(keychain.kept.value(source.secret).isEmpty(), false);

    // Another secret: in a file, as the keychain fails; the former one stays, and the list is changed.
    token.authorisation = u"other"_s;
    said.clear();
    desk.change(source, token, into(said));
    keychain.answer(false);
    keychain.answer(false);
    ASSERT_TRUE(hasSaid(said));
    EXPECT_EQ(said,
              u"The list is as you wish, but the former secret of A Paper could not be removed: "
              "The keychain does not answer."_s);
    source = desk.sources().front().source;
    ASSERT_TRUE(source.secret.startsWith(u"file:"_s)) << source.secret.toStdString();

    // What stands in place of the file is no file, and stays.
    const QString file = source.secret.sliced(5);
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QDir().mkpath(file + u"/inside"_s));
    said.clear();
    desk.remove(source.name, into(said));
    ASSERT_TRUE(hasSaid(said));
    EXPECT_TRUE(
        said.startsWith(u"The list is as you wish, but the former secret of A Paper could not be "
                        "removed: The file %1 with the secret cannot be removed: "_s.arg(file)))
        << said.toStdString();
    EXPECT_TRUE(desk.sources().empty());
}

}  // namespace
}  // namespace wirepane
