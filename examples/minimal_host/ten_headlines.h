// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The back end of the example.
#pragma once

#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>

// Ten headlines of this morning, the newest first. All of it is at hand: a host whose headlines or stories
// come later answers false for what it has not, and tells RespHeadLine or RespStory when it has.
class TenHeadlines : public BKQuoteInterface {
public:
    // The view takes the names of its topics from a file.
    TenHeadlines() {
        QFile file(folder.filePath(QStringLiteral("NewsService.ini")));
        if (file.open(QIODevice::WriteOnly))
            file.write("[CONFIG]\nCatId=\"7\"\nSHORTNAME=\"Markets\"\n");
    }
    QString PathGetSysPath() override { return folder.path(); }

    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& services) override {
        services = {newsService};
        return true;
    }
    bool BKQNEWS_bGetFullNameByService(QString& name, unsigned char service) override {
        if (service != newsService)
            return false;
        name = QStringLiteral("Morning wire");
        return true;
    }
    QString BKQNEWS_cszGetCurrDateByService(unsigned char) override {
        return wirepane::host_clock::today().toString(QStringLiteral("yyyyMMdd"));
    }
    int bIsConnect() override { return 1; }

    using BKQuoteInterface::BKQNEWS_iGetHeadlineTable;  // the form by symbol stays as it is
    int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int kind,
                                  const QString& key) override {
        const bool today = key == BKQNEWS_cszGetCurrDateByService(service);
        if (service != newsService || kind != static_cast<int>(wirepane::TableKind::ByDate) || !today)
            return 0;
        for (int number = count; number > 0; --number)
            table.push_back(entryOf(number));
        return count;
    }

    int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                             const std::vector<CHeadlineTable>& entries) override {
        const std::size_t before = headlines.size();
        for (const CHeadlineTable& entry : entries) {
            if (service != newsService || !isOurs(entry))
                continue;
            const char* title = titles[static_cast<std::size_t>(count - entry.sequence)];
            CHeadline headline{service, entry.time, entry.sequence, QString::fromLatin1(title)};
            headline.categoryId = markets;
            headlines.push_back(headline);
        }
        return static_cast<int>(headlines.size() - before);
    }

    bool BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) override {
        if (!isOurs(entry))
            return false;
        story = {entry.time, QStringLiteral("A story of one line.@@@@And another one."), entry};
        return true;
    }

private:
    static constexpr unsigned char newsService = 1;
    static constexpr std::int32_t markets = 7;  // the id of the only topic
    static constexpr int minutesBetweenHeadlines = 7;
    static constexpr std::array titles{"Harbour Cranes wins order for four container bridges",
                                       "Tea exporters see a record first quarter",
                                       "Central bank leaves its key rate unchanged",
                                       "Copper slips as inventories rise",
                                       "Lantern Foods to open two plants in the south",
                                       "Shipping rates firm on the Pacific routes",
                                       "Aster Chemical names a new chairman",
                                       "Rice futures close higher on late buying",
                                       "Northgate Rail plans a bond of 300 million",
                                       "Opening bell: shares little changed"};
    static constexpr int count = static_cast<int>(titles.size());

    CHeadlineTable entryOf(int number) const {
        CHeadlineTable entry;
        entry.service = newsService;
        entry.sequence = number;
        entry.time = std::max(start - (count - number) * minutesBetweenHeadlines * 60, midnight);
        return entry;
    }
    bool isOurs(const CHeadlineTable& entry) const {
        return entry.sequence >= 1 && entry.sequence <= count &&
               wirepane::keyOf(entry) == wirepane::keyOf(entryOf(entry.sequence));
    }

    const QTemporaryDir folder;
    const std::int64_t start = wirepane::host_clock::now();
    const std::int64_t midnight = wirepane::host_clock::today().startOfDay().toSecsSinceEpoch();
};
