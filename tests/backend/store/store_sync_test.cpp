// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/store_sync.h"

#include "backend/store/store_file.h"

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class StoreSyncTest : public testing::Test {
protected:
    void write(int bytes) {
        const QByteArray sql = "INSERT INTO notes VALUES(randomblob(" + QByteArray::number(bytes) + "))";
        ASSERT_TRUE(store->execute(sql.constData())) << sentence(store->failure()).toStdString();
    }

    QTemporaryDir folder;
    QString file = folder.filePath(u"news.wirepane"_s);
    std::unique_ptr<Database> store = [this] {
        auto opened = std::move(openStore(file).value());
        EXPECT_TRUE(opened->execute("CREATE TABLE notes(text BLOB)"));
        return opened;
    }();
};

TEST_F(StoreSyncTest, CallsBackInOrderFromTheEventLoop) {
    StoreSync sync(*store);
    std::vector<int> told;
    for (int i = 0; i < 5; ++i) {
        write(100);
        sync.whenOnDisk([&told, i](const Done& onDisk) { told.push_back(onDisk ? i : -1); });
    }
    EXPECT_TRUE(told.empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() == 5; }));
    EXPECT_EQ(told, (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST_F(StoreSyncTest, WhoIsCalledMayAskAgain) {
    StoreSync sync(*store);
    int told = 0;
    sync.whenOnDisk([&](const Done&) {
        ++told;
        sync.whenOnDisk([&](const Done&) { ++told; });
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return told == 2; }));
}

TEST_F(StoreSyncTest, NobodyIsCalledAfterTheEnd) {
    bool told = false;
    {
        StoreSync sync(*store);
        sync.whenOnDisk([&](const Done&) { told = true; });
    }
    QCoreApplication::processEvents();
    EXPECT_FALSE(told);
}

TEST_F(StoreSyncTest, AStoreThatIsGoneIsAnError) {
    StoreSync sync(*store);
    ASSERT_TRUE(QFile::remove(file));
    QString error;
    sync.whenOnDisk([&](const Done& onDisk) { error = onDisk ? QString() : sentence(onDisk.error()); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !error.isEmpty(); }));
    EXPECT_TRUE(error.contains(u"news.wirepane"_s)) << error.toStdString();
}

}  // namespace

}  // namespace wirepane
