// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/source_texts.h"

#include "backend/network/answer_reading.h"
#include "backend/network/http_fetch.h"
#include "backend/network/network_errors.h"
#include "backend/network/source_asker.h"
#include "terminal/sources/source_model.h"
#include "terminal/translations/languages.h"
#include "tests/support/qt_printers.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QJsonArray>

#include <gtest/gtest.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

constexpr std::int64_t now = 1772424000;  // 2 March 2026, 12:00 in Taipei

ListedSource listed() {
    ListedSource each;
    each.source.name = u"a"_s;
    each.source.title = u"Harbour Post"_s;
    each.source.address = QUrl(u"https://post.example/feed?token="_s);
    each.source.kind = NetworkKind::Feed;
    each.standing.lastTry = each.standing.lastSuccess = now - 60;
    each.standing.nextTry = now + 90;
    each.standing.day = 20260302;
    each.standing.items = 1412;
    each.standing.delay = 82;
    return each;
}

QString shown(const ListedSource& each, const std::optional<SourceState>& live = {}) {
    const SourceRow row = rowOf(each, live, now);
    return QStringList{row.title, row.detail, row.state, row.last, row.next, row.today, row.delay}.join(u'|');
}

class SourceTexts : public testing::Test {
protected:
    SourceTexts() { EXPECT_TRUE(languages.use(u"en"_s)); }

    Languages languages;
};

TEST_F(SourceTexts, ARowSaysHowItsSourceStands) {
    const SourceState live{SourceState::Live, now};
    EXPECT_EQ(shown(listed(), live),
              u"Harbour Post|post.example · RSS, Atom · adapts|Live|11:59:00|in 90 s|1,412|82 ms"_s);
    ListedSource slow = listed();
    slow.source.interval = 600;
    slow.standing.nextTry = now + 480;
    slow.standing.day = 20260301;  // of yesterday
    slow.standing.lastSuccess = now - 86400;
    slow.standing.delay = 2340;
    EXPECT_EQ(
        shown(slow, SourceState{SourceState::Stale, now - 7200}),
        u"Harbour Post|post.example · RSS, Atom · every 600 s|Nothing new since 10:00|03/01 12:00|in 8 min|0|2.3 s"_s);
    ListedSource fresh = listed();
    fresh.source.title.clear();
    fresh.source.kind = NetworkKind::WebSocket;
    fresh.standing = {};
    EXPECT_EQ(shown(fresh), u"post.example|post.example · WebSocket · stream|Not asked yet|–|stream|0|–"_s);
    ListedSource elsewhere = listed();
    EXPECT_EQ(rowOf(elsewhere, {}, now).state, u"Live"_s) << "another program's terminal reads it";
    elsewhere.standing.gaps = QString::number(now - 7200) + u" 30/10"_s.repeated(48);
    EXPECT_EQ(rowOf(elsewhere, {}, now).state, u"Nothing new since 10:00"_s);
    elsewhere.standing.nextTry = now - 61;
    EXPECT_EQ(rowOf(elsewhere, {}, now).state, u"No terminal reads it at the moment"_s);
    ListedSource paused = listed();
    paused.source.isPaused = true;
    EXPECT_EQ(shown(paused, live),
              u"Harbour Post|post.example · RSS, Atom · adapts|Paused|11:59:00|–|1,412|82 ms"_s);
}

TEST_F(SourceTexts, AFaultIsToldInTheRowInTheLanguageInForce) {
    const Error fault = makeError<network_errors::noSource>(u"x"_s);
    const SourceState failed{SourceState::Failed, now, fault};
    EXPECT_EQ(rowOf(listed(), failed, now).state, u"There is no source “x” in the list."_s);
    ListedSource kept = listed();
    kept.standing.fault = {{u"code"_s, QString::fromLatin1(fault.code->key)},
                           {u"arguments"_s, QJsonArray{u"x"_s}}};
    ASSERT_TRUE(languages.use(u"zh-TW"_s));
    const SourceRow row = rowOf(kept, std::nullopt, now);
    EXPECT_TRUE(row.isFaulty);
    EXPECT_TRUE(row.state.contains(u'x') && !row.state.contains(u"There"_s)) << row.state.toStdString();
}

// What a network gives in which somebody has to sign in first: the page of another host, by a redirect.
TEST_F(SourceTexts, APageThatAnotherHostGivesIsToldInTheRowInEachLanguage) {
    HttpAnswer answer;
    answer.isAlive = true;
    answer.address = QUrl(u"https://login.example/?from=post.example"_s);
    answer.contentType = "application/rss+xml";
    answer.body = "<!DOCTYPE html><html><head><title>Welcome, please sign in</title></head></html>";
    const SourceAnswer read = readAnswer(listed().source, answer, now);
    ASSERT_TRUE(read.fault);
    EXPECT_FALSE(read.isRead);
    EXPECT_TRUE(read.items.empty());
    const std::pair<QString, QString> words[] = {
        {u"en"_s, u"sign in"_s}, {u"zh-TW"_s, u"登入"_s}, {u"zh-CN"_s, u"登录"_s}};
    for (const auto& [language, word] : words) {
        ASSERT_TRUE(languages.use(language));
        const SourceRow row = rowOf(listed(), SourceState{SourceState::Failed, now, *read.fault}, now);
        EXPECT_TRUE(row.isFaulty);
        EXPECT_TRUE(row.state.contains(word) && row.state.contains(u"post.example"_s) &&
                    row.state.contains(u"login.example"_s))
            << row.state.toStdString();
    }
}

TEST_F(SourceTexts, TheListShowsSourcesAndThenWhatIsReadyMadeAndNotTaken) {
    SourceModel model(
        [] {
            const SourceDelays delays{u"a"_s, {4, 250'000, 1'500'000, 61'000'000}, {4, 900, 12'400, 13'000}};
            return std::map<QString, SourceModel::Life>{{u"a"_s, {std::nullopt, delays}}};
        },
        nullptr);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_EQ(model.rowCount(), 1);
    const ReadyMadeSource made = *model.readyMade(0);
    EXPECT_FALSE(model.shown(0).isOn);
    EXPECT_FALSE(made.source.isTyped);
    EXPECT_TRUE(checkedSource(made.source));

    ListedSource taken = listed();
    taken.source.name = u"b"_s;
    taken.source.address = made.source.address;
    taken.source.isPaused = true;
    model.show({listed(), taken});
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.readyMade(1), nullptr);
    EXPECT_EQ(model.rowOfName(u"b"_s), 1);
    EXPECT_EQ(model.countOn(), 1);

    const auto tipOf = [&](int row) {
        return model.data(model.index(row, SourceModel::Delay), Qt::ToolTipRole).toString();
    };
    const QString tip = tipOf(0);
    EXPECT_TRUE(tip.contains(u"250 ms, 1.5 s, 61.0 s"_s) && tip.contains(u"0 ms, 12 ms, 13 ms"_s))
        << tip.toStdString();
    EXPECT_EQ(tipOf(1), QString());

    std::vector<std::pair<int, bool>> ticks;
    QObject::connect(&model, &SourceModel::ticked, &model,
                     [&](int row, bool on) { ticks.emplace_back(row, on); });
    model.setData(model.index(0, SourceModel::On), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_EQ(ticks, (std::vector<std::pair<int, bool>>{{0, false}}));
    EXPECT_EQ(model.data(model.index(0, SourceModel::On), Qt::CheckStateRole).toInt(), Qt::Checked);
}

}  // namespace
}  // namespace wirepane
