// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/local_days.h"
#include "host/contract/records.h"

#include <QElapsedTimer>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace wirepane {

// The tables that hold some news, each once.
struct AnnouncedTables {
    std::set<std::pair<unsigned char, std::int32_t>> days;        // service, yyyymmdd
    std::set<std::pair<unsigned char, std::int32_t>> categories;  // service, id
    std::set<std::pair<unsigned char, QString>> symbols;          // service, code
    std::map<unsigned char, std::vector<HeadlineKey>> news;       // by service: the news itself

    bool empty() const { return news.empty(); }
};

// Gathers the tables that hold news which is not told piece by piece, and tells of them from the event loop:
// of each table once for all that came together, and of none more often than once a second. Interface thread.
class TableAnnouncements : public QObject {
    Q_OBJECT

public:
    // `isArriving`: more of what came together is on its way; it is waited for, for a while.
    TableAnnouncements(std::function<bool()> isArriving, std::function<void(const AnnouncedTables&)> tell);

    // `inTables`: tables by category and symbol reach as far back as this news.
    void add(const HeadlineKey& key, std::int32_t categoryId, const std::vector<CSymbolInfo>& symbols,
             bool inTables);
    bool isDone() const { return waiting.empty(); }
    // While closed nothing is told and nothing is lost.
    void close() { timer.stop(); }
    void open();

private:
    void tellWaiting();

    std::function<bool()> isArriving;
    std::function<void(const AnnouncedTables&)> tell;
    AnnouncedTables waiting;
    LocalDays localDays;
    QElapsedTimer sinceFirst;  // of what waits
    QElapsedTimer sinceTold;
    QTimer timer;
};

}  // namespace wirepane
