// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/database.h"
#include "host/contract/records.h"

#include <QDate>

#include <functional>
#include <memory>
#include <vector>

namespace wirepane {

// The keys that the lists of a view must hold, told from the store's tables by plain SQL and plain loops.
class StoreTruth {
public:
    explicit StoreTruth(const QString& storePath);

    struct Row {
        HeadlineKey key;
        std::int32_t category = 0;
        QString title;
    };
    using Services = std::vector<unsigned char>;
    using Wanted = std::function<bool(const Row&)>;

    // In no order that matters: sort both sides.
    std::vector<HeadlineKey> ofDay(const QDate& day, const Services& services, const Wanted& wanted = {});
    std::vector<HeadlineKey> ofCategory(int category, const Services& services);
    std::vector<HeadlineKey> ofSymbol(unsigned char market, const QString& code, const Services& services);
    // Headlines with the word, of every service and day.
    std::vector<HeadlineKey> withWord(const QString& word);
    int count(const char* sql);
    // The title of a headline and the name of its topic.
    QStringList textsOf(const HeadlineKey& key);

private:
    std::vector<HeadlineKey> read(const QString& condition, const Wanted& wanted = {});

    std::unique_ptr<wirepane::Database> store;
};

}  // namespace wirepane
