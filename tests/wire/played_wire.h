// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wire/wire_driver.h"
#include "wire/wire_errors.h"

#include <map>

namespace wirepane {

// A wire without a server: what is appended is there once it is committed, and answers can be lost.
class PlayedWire : public WireServer {
public:
    enum class Answer { Comes, LostBeforeCommit, LostAfterCommit };

    Answer nextAnswer = Answer::Comes;
    std::vector<WireRow> rows;
    std::map<QString, QString> positions;
    WireHead state{QStringLiteral("e1"), 0, wireFormat, QStringLiteral("UTC"), 1'700'000'000};

    Done make(const QString&) override { return Nothing{}; }
    Done entitle(const QString&, const QList<int>&) override { return Nothing{}; }
    Result<WireHead> head() override { return state; }
    Result<WireCare> care() override { return WireCare(); }
    Result<QStringList> faults() override { return QStringList(); }
    Result<std::vector<DayDigest>> digests() override { return std::vector<DayDigest>(); }
    Result<QString> positionOf(const QString& source) override { return positions[source]; }
    Done beat(const QString&) override { return Nothing{}; }
    Result<WireHead> lockHead() override {
        pending = {};
        ++state.moment;
        return state;
    }
    // A few rows at a time, so that several pages are read.
    Result<WirePage> pageAfter(std::int64_t sequence) override {
        WirePage page{state, {}};
        for (const WireRow& row : rows) {
            if (row.sequence > sequence && page.rows.size() < 3)
                page.rows.push_back(row);
        }
        return page;
    }
    Done append(const WirePortion& portion) override {
        pending.rows.insert(pending.rows.end(), portion.rows.begin(), portion.rows.end());
        pending.source = portion.source;
        pending.position = portion.position;
        return Nothing{};
    }
    Done commit() override {
        const Answer answer = std::exchange(nextAnswer, Answer::Comes);
        if (answer != Answer::LostBeforeCommit) {
            rows.insert(rows.end(), pending.rows.begin(), pending.rows.end());
            state.last = rows.empty() ? 0 : rows.back().sequence;
            if (!pending.source.isEmpty())
                positions[pending.source] = pending.position;
        }
        pending = {};
        if (answer == Answer::Comes)
            return Nothing{};
        return makeError<wire_errors::server>(QStringLiteral("gone"));
    }
    void rollback() override { pending = {}; }

private:
    WirePortion pending;
};

}  // namespace wirepane
