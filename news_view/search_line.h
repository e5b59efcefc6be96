// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "news_view/common_parts.h"

#include <QObject>

#include <array>
#include <functional>
#include <optional>

class CSuperSheetWnd;
struct CSearch;

namespace wirepane {
class HeadlineTable;
class SearchDesk;
class ViewContext;
struct ChipLineText;

// The line over what a search has found: its condition in parts that can be taken out, how much was found, as
// of which moment, and the time that it took. For a view whose options ask for it. Interface thread only.
class SearchLine : public QObject {
    Q_OBJECT

public:
    // `replace` searches for another condition in the shown list.
    using Replace = std::function<void(const CSearch& condition)>;
    SearchLine(ViewContext& context, const CommonParts& parts, const SearchDesk& searches, Replace replace);

    // The line is there from here on, hidden.
    void create();
    // From here on its rows are followed.
    void watch(CSuperSheetWnd& grid);
    // What the line says may have changed, or the language has.
    void followSoon();

private:
    void followRows();
    void follow();
    void takeOut(int part);
    ChipLineText conditionText(const CSearch& found) const;
    QString detailsOf(const HeadlineTable& found);

    ViewContext& context;
    const CommonParts parts;
    const SearchDesk& searches;
    const Replace replace;
    bool isPosted = false;
    // How many headlines each service has in a list; none: its rows have changed.
    struct Counted {
        ListIndex list;
        std::array<int, 256> ofServices;
    };
    std::optional<Counted> counted;
};

}  // namespace wirepane
