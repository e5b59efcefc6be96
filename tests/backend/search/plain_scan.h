// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "host/contract/search_condition.h"
#include "tests/backend/search/plain_words.h"

#include <QStringList>

#include <vector>

namespace wirepane {

// What a search finds, found without any index: every text is split and looked through.
class PlainScan {
public:
    void add(const NewsItem& item);

    // The identities of the news of a service that meet the condition, sorted.
    QStringList find(unsigned char service, const CSearch& condition) const;

private:
    struct Entry {
        unsigned char service;
        QString identity;
        QByteArray title;  // the words in UTF-8, each between blanks
        QByteArray story;
        std::vector<CSymbolInfo> related;
    };
    PlainWords words;
    std::vector<Entry> entries;
};

}  // namespace wirepane
