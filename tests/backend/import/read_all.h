// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "tests/support/qt_printers.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace wirepane {

// Everything that a reader made of a source.
struct ReadOut {
    // In English.
    struct Rejected {
        QString place;
        QString reason;
    };

    std::vector<StoreItem> items;
    std::vector<Rejected> rejections;
    QString refusal;  // why the source was not read at all

    const NewsItem& news(std::size_t i = 0) const { return std::get<NewsItem>(items.at(i)); }
    const SymbolItem& symbol(std::size_t i = 0) const { return std::get<SymbolItem>(items.at(i)); }
    // The rejections as "place: reason", one per line.
    QString complaints() const;
};

ReadOut readAll(QByteArray source, const ReadOptions& options = {});

}  // namespace wirepane
