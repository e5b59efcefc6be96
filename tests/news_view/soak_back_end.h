// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/fake_back_end.h"

#include <QDate>

namespace wirepane {

// A back end that holds a million headlines: each number is given once, a headline that is sent again keeps
// its number and day.
class SoakBackEnd : public FakeBackEnd {
public:
    struct Item {
        CHeadline headline;
        QString symbol;
    };

    // The news day of every service.
    QDate newsDay;

    // Stores a new headline, or one that is sent again in place of what has its number.
    void store(const Item& item);
    int size() const { return static_cast<int>(items.size()); }
    const Item& at(int number) const { return items[static_cast<std::size_t>(number)]; }

    QString BKQNEWS_cszGetCurrDateByService(unsigned char service) override;
    int BKQNEWS_iGetHeadlineTable(std::vector<CHeadlineTable>& table, unsigned char service,
                                  const CSymbolInfo& symbol) override;
    int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int kind,
                                  const QString& key) override;
    int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                             const std::vector<CHeadlineTable>& entries) override;
    bool BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) override;

private:
    template <class Wanted>
    int append(std::vector<CHeadlineTable>& table, const std::vector<int>& numbers, Wanted wanted) const;

    std::vector<Item> items;                                             // by number
    std::map<std::pair<unsigned char, QString>, std::vector<int>> days;  // numbers by service and yyyymmdd
    std::map<unsigned char, std::vector<int>> ofService;
};

}  // namespace wirepane
