// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_connection.h"
#include "backend/feed/line_source.h"
#include "backend/import/import_errors.h"
#include "backend/lines/line_channel.h"
#include "tests/backend/feed/feed_fixture.h"

namespace wirepane {

namespace {

using TakeBatchTest = FeedFixture;

QByteArray positioned(const QByteArray& record, int position) {
    return "{\"wirepane\":{\"position\":\"" + QByteArray::number(position) + "\",\"ninjs\":" + record + "}}";
}

TEST_F(TakeBatchTest, LinesAreAcknowledgedOnceTheyAreOnTheDisk) {
    LineSource source;
    QStringList acknowledgements;
    source.onAcknowledged([&](const LineSource::Acknowledgement& told) {
        acknowledgements += u"%1: %2 %3 %4"_s.arg(told.lines)
                                .arg(told.outcome.totals.takenIn)
                                .arg(told.outcome.totals.alreadyThere)
                                .arg(told.outcome.totals.rejected);
    });
    QStringList places;
    source.add(handshakeLine({u"wire"_s, 16}));
    EXPECT_FALSE(source.hasBatch());
    source.add(positioned(record(u"a"_s, u"A"_s), 1));
    source.add("rubbish");
    source.addRejected(makeError<import_errors::lineTooLong>(10));
    source.add(handshakeLine({u"other"_s, 1}));
    source.add(positioned(record(u"a"_s, u"A"_s), 2));
    const Result<BatchOutcome> taken = takeBatch(*source.batch(), source.name(), *writer);
    ASSERT_TRUE(taken);
    EXPECT_EQ(acknowledgements, QStringList{});
    source.acknowledge(taken.value());
    for (const Rejection& rejection : taken.value().rejections)
        places += sentence(*rejection.place);
    EXPECT_EQ(acknowledgements, QStringList{u"5: 1 1 3"_s});
    EXPECT_EQ(places, (QStringList{u"line 2"_s, u"line 3"_s, u"line 4"_s}));
    EXPECT_EQ(writer->positionOf(u"wire"_s).value(), u"2"_s);
    EXPECT_FALSE(source.hasBatch());

    for (int i = 0; i < 2500; ++i)
        source.add(positioned(record(QString::number(i), u"N"_s), 10 + i));
    while (source.hasBatch()) {
        const Result<BatchOutcome> next = takeBatch(*source.batch(), source.name(), *writer);
        ASSERT_TRUE(next);
        source.acknowledge(next.value());
    }
    EXPECT_EQ(acknowledgements.mid(1),
              (QStringList{u"1005: 1000 0 0"_s, u"2005: 1000 0 0"_s, u"2505: 500 0 0"_s}));
    EXPECT_EQ(writer->positionOf(u"wire"_s).value(), u"2509"_s);
    source.add(record(u"z"_s, u"Z"_s));
    EXPECT_TRUE(takeBatch(*source.batch(), source.name(), *writer));
    EXPECT_EQ(writer->positionOf(u"wire"_s).value(), u"2509"_s) << "what names none is behind none";
}

// Who takes a batch keeps others waiting.
TEST_F(TakeBatchTest, BatchesAreBoundedInSize) {
    LineSource source;
    for (int i = 0; i < 30; ++i)
        source.add(QByteArray(100'000, 'x'));
    EXPECT_TRUE(source.isFull());
    const auto linesOfNext = [&] {
        int lines = 0;
        EXPECT_TRUE(source.batch()->read([&](SourceItem&&) {
            ++lines;
            return true;
        }));
        return lines;
    };
    EXPECT_EQ(linesOfNext(), 6);
    EXPECT_EQ(linesOfNext(), 6) << "the same until it is acknowledged";
    int taken = 0;
    while (source.hasBatch()) {
        EXPECT_EQ(source.isFull(), taken <= 30 - 6);
        taken += linesOfNext();
        source.acknowledge({});
    }
    EXPECT_EQ(taken, 30);
    EXPECT_FALSE(source.isFull());
}

TEST_F(TakeBatchTest, AStoreThatFailsKeepsTheBatchForLater) {
    FailingSink sink(*writer);
    LineSource source;
    int acknowledgements = 0;
    source.onAcknowledged([&](const LineSource::Acknowledgement&) { ++acknowledgements; });
    source.add(handshakeLine({u"wire"_s, 1}));
    source.add(positioned(record(u"a"_s, u"A"_s), 1));
    source.add(positioned(record(u"b"_s, u"B"_s), 2));
    for (const auto moment :
         {FailingSink::Begin, FailingSink::TakeSecond, FailingSink::Keep, FailingSink::Commit}) {
        sink.failsAt = moment;
        EXPECT_FALSE(takeBatch(*source.batch(), source.name(), sink)) << moment;
        EXPECT_EQ(titles(), QStringList{}) << moment;
        EXPECT_EQ(writer->positionOf(u"wire"_s).value(), QString()) << moment;
        EXPECT_EQ(acknowledgements, 0) << moment;
    }
    sink.failsAt = FailingSink::Never;
    EXPECT_TRUE(takeBatch(*source.batch(), source.name(), sink));
    EXPECT_EQ(titles(), (QStringList{u"A"_s, u"B"_s}));
}

class FakeChannel : public LineChannel {
public:
    void send(const QByteArray& line) override { sent += line; }
    void heldChanged() override {}
    QByteArrayList sent;
};

TEST_F(TakeBatchTest, ASenderIsAnsweredIfItWantsToBeAndDoneWithWhenItsLinesAreTaken) {
    for (const auto answers : {FeedConnection::Answers::All, FeedConnection::Answers::None}) {
        const qsizetype answered = answers == FeedConnection::Answers::All ? 1 : 0;
        FakeChannel channel;
        FeedConnection sender(&channel, 1, answers);
        emit channel.lineReceived(handshakeLine({u"wire"_s, 1}));
        sender.resume(u"4"_s);
        EXPECT_EQ(channel.sent, QByteArrayList(answered, "{\"position\":\"4\"}\n"));
        emit channel.lineReceived(record(u"a"_s, u"A"_s));
        emit channel.ended();
        EXPECT_FALSE(sender.isDone());
        sender.batch();
        sender.acknowledge({});
        EXPECT_TRUE(sender.isDone());
        EXPECT_EQ(channel.sent.size(), 2 * answered);
    }
}

}  // namespace

}  // namespace wirepane
