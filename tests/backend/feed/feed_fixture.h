// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/store_file.h"
#include "backend/store/store_writer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>

namespace wirepane {

using namespace Qt::StringLiterals;

// A store and a folder of its own.
class FeedFixture : public testing::Test {
protected:
    FeedFixture()
        : store(std::move(openStore(folder.filePath(u"news.db"_s)).value())),
          writer(std::make_unique<StoreWriter>(*store)) {}

    // What the store holds, in the order of coming.
    QStringList titles() {
        Statement statement(*store, "SELECT title FROM headlines ORDER BY id");
        QStringList found;
        for (Query query(statement); query.next();)
            found += query.text(0);
        return found;
    }

    static QByteArray record(const QString& identity, const QString& title) {
        return u"{\"uri\":\"%1\",\"headline\":\"%2\",\"versioncreated\":\"2026-03-02T01:00:00Z\"}"_s
            .arg(identity, title)
            .toUtf8();
    }

    QTemporaryDir folder;
    std::unique_ptr<Database> store;
    std::unique_ptr<StoreWriter> writer;
};

inline constexpr ErrorCode refusal{"", u"no"};

// A store that fails when it is told to.
class FailingSink : public FeedSink {
public:
    explicit FailingSink(FeedSink& sink) : real(sink) {}

    enum Moment { Never, Begin, TakeSecond, Keep, Commit };
    Moment failsAt = Never;

    Done begin() override {
        taken = 0;
        return failsAt == Begin ? Done(makeError<refusal>()) : real.begin();
    }
    Result<TakeOutcome> take(const StoreItem& item) override {
        if (failsAt == TakeSecond && ++taken == 2)
            return makeError<refusal>();
        return real.take(item);
    }
    Done commit() override { return failsAt == Commit ? Done(makeError<refusal>()) : real.commit(); }
    void rollback() override { real.rollback(); }
    Done keepPosition(const QString& source, const QString& position) override {
        return failsAt == Keep ? Done(makeError<refusal>()) : real.keepPosition(source, position);
    }

private:
    FeedSink& real;
    int taken = 0;
};

}  // namespace wirepane
