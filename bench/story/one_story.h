// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/entry_source.h"
#include "host/contract/bk_quote_interface.h"

namespace wirepane {

// A back end and a list with one headline and its story, which is given in the form of the wire.
class OneStory : public BKQuoteInterface, public EntrySource {
public:
    explicit OneStory(QString text) : wire(std::move(text)) { setBKInterface(this); }

    int entryCount(ListIndex) const override { return 1; }
    std::optional<CHeadlineTable> entryOf(ListIndex, int row) const override {
        return row == 0 ? std::optional(CHeadlineTable{1'770'000'000, 1, 1, 0, 0}) : std::nullopt;
    }
    void vGetNewsActiveService(std::vector<unsigned char>& services) const override { services = {1}; }
    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>&) override { return false; }
    bool BKQNEWS_bGetFullNameByService(QString&, unsigned char) override { return false; }
    QString BKQNEWS_cszGetCurrDateByService(unsigned char) override { return {}; }
    int bIsConnect() override { return 1; }
    using BKQuoteInterface::BKQNEWS_iGetHeadlineTable;
    int BKQNEWS_iGetHeadlineTable(unsigned char, std::vector<CHeadlineTable>&, int, const QString&) override {
        return 0;
    }
    int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                             const std::vector<CHeadlineTable>& entries) override {
        headlines.push_back(
            {service, entries.front().time, 1, QStringLiteral("Freight rates recover"), 0, 1, 0});
        return 1;
    }
    bool BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) override {
        story = {entry.time, wire, entry};
        return true;
    }

    const QString wire;
};

}  // namespace wirepane
