// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "host/contract/view_kinds.h"

#include <QByteArray>

#include <map>
#include <vector>

namespace wirepane {
class SettingsFile;

// One of the user's views, as it is to be opened again. Its settings stand in the layout store under its
// place.
struct StoredView {
    int place = 0;
    NewsType newsType = NewsType::Full;
    QString typeName;
    QString title;  // given by the user; empty: what the view shows
    unsigned char linkGroup = 0;

    bool operator==(const StoredView&) const = default;
};

// The user's views, how they stand, and what their link groups show.
struct WorkspaceLayout {
    std::vector<StoredView> views;
    QByteArray arrangement;  // ViewDocks::save
    int activePlace = 0;
    std::map<unsigned char, SymbolItem> symbols;  // by link group

    // What stands in the file. A view that makes no sense is left out, and so are those beyond `mostViews`
    // and a second one for a place; a value that makes no sense counts as absent.
    static WorkspaceLayout read(const SettingsFile& file);
    void write(SettingsFile& file) const;

    static constexpr int mostViews = 64;
    static constexpr int lastPlace = 999;
};

}  // namespace wirepane
