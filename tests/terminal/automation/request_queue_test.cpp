// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/request_queue.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class MemoryChannel : public LineChannel {
public:
    void type(const QByteArray& bytes) { received(bytes); }
    void send(const QByteArray& line) override { answers.append(line.trimmed()); }

    QByteArrayList answers;

protected:
    void heldChanged() override {}
};

QByteArray request(int id, const QByteArray& method) {
    return "{\"jsonrpc\":\"2.0\",\"id\":" + QByteArray::number(id) + ",\"method\":\"" + method + "\"}\n";
}

int idOf(const QByteArray& answer) {
    return QJsonDocument::fromJson(answer).object().value("id"_L1).toInt();
}

class RequestQueueTest : public testing::Test {
protected:
    RequestQueueTest() : queue(table) {
        queue.listenTo(&channel);
        table.add(u"now"_s, [](Params&) { return Answer(); });
        table.addDeferred(u"later"_s, [this](Params&, const Reply& reply) {
            QTimer::singleShot(20, &queue, [reply] { reply(Answer()); });
        });
        table.addModal(u"dialog"_s, [this](Params& params) {
            params.text(u"title"_s);
            if (!params.error()) {
                ++open;
                dialog.exec();
                --open;
            }
            return Answer();
        });
        table.add(u"state"_s, [this](Params&) { return QJsonObject{{u"open"_s, open}}; });
        table.addWithList(u"list"_s, u"items"_s, [](Params& params) {
            return QJsonObject{{u"size"_s, params.value(u"items"_s).toArray().size()}};
        });
        table.add(u"end"_s, [this](Params&) {
            dialog.quit();
            return Answer();
        });
    }

    void waitForAnswers(qsizetype count) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return channel.answers.size() >= count; }));
    }

    MethodTable table;
    RequestQueue queue;
    MemoryChannel channel;
    QEventLoop dialog;
    int open = 0;
};

TEST_F(RequestQueueTest, AClientThatAsksFasterThanItIsAnsweredWaits) {
    const QByteArray title(1'000'000, 'x');
    for (int i = 1; i <= 5; ++i)
        channel.type("{\"jsonrpc\":\"2.0\",\"id\":" + QByteArray::number(i) +
                     ",\"method\":\"now\",\"params\":{\"title\":\"" + title + "\"}}\n");
    EXPECT_TRUE(channel.isHeld());
    waitForAnswers(5);
    EXPECT_FALSE(channel.isHeld());
}

TEST_F(RequestQueueTest, AnswersStandInTheOrderOfTheRequests) {
    channel.type(request(1, "later") + "garbage\n" + request(2, "now") + request(3, "unknown") +
                 request(4, "later") + request(5, "now"));
    waitForAnswers(6);
    const QList<int> expected{1, 0, 2, 3, 4, 5};
    for (qsizetype i = 0; i < expected.size(); ++i)
        EXPECT_EQ(idOf(channel.answers[i]), expected[i]) << channel.answers[i].toStdString();
    EXPECT_TRUE(channel.answers[1].contains("-32700"));
    EXPECT_TRUE(channel.answers[3].contains("-32601"));
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(RequestQueueTest, RequestsGoOnWhileADialogThatTheyOpenedRuns) {
    channel.type(R"({"jsonrpc":"2.0","id":1,"method":"dialog","params":{"title":"x"}})"
                 "\n" +
                 request(2, "state") + request(3, "end") + request(4, "now"));
    waitForAnswers(4);
    EXPECT_EQ(QJsonDocument::fromJson(channel.answers[1]).object().value("result"_L1).toObject(),
              (QJsonObject{{u"open"_s, 1}}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return open == 0; }));
    EXPECT_EQ(channel.answers.size(), 4);
}

TEST_F(RequestQueueTest, AnErrorBeforeTheDialogOpensIsTheAnswer) {
    channel.type(request(1, "dialog") + request(2, "now"));
    waitForAnswers(2);
    EXPECT_TRUE(channel.answers[0].contains("-32602")) << channel.answers[0].toStdString();
}

TEST_F(RequestQueueTest, OnlyAMethodThatTakesAListGetsOne) {
    channel.type(
        "{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"list\",\"params\":[1,2]}\n"
        "{\"jsonrpc\":\"2.0\",\"id\":2,\"method\":\"now\",\"params\":[1,2]}\n");
    waitForAnswers(2);
    EXPECT_TRUE(channel.answers[0].contains("{\"size\":2}")) << channel.answers[0].toStdString();
    EXPECT_TRUE(channel.answers[1].contains("-32602")) << channel.answers[1].toStdString();
}

TEST_F(RequestQueueTest, ANotificationIsCarriedOutAndNotAnswered) {
    channel.type("{\"jsonrpc\":\"2.0\",\"method\":\"later\"}\n" + request(2, "now"));
    waitForAnswers(1);
    EXPECT_EQ(channel.answers.size(), 1);
    EXPECT_EQ(idOf(channel.answers[0]), 2);
}

TEST_F(RequestQueueTest, AChannelThatGoesTakesNothingWithIt) {
    auto* leaving = new MemoryChannel;
    queue.listenTo(leaving);
    leaving->type(request(1, "later") + request(2, "now"));
    channel.type(request(3, "now"));
    delete leaving;
    waitForAnswers(1);
    EXPECT_EQ(idOf(channel.answers[0]), 3);
}

}  // namespace

}  // namespace wirepane
