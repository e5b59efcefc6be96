// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"
#include "news_view/common_parts.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

class SearchEdit2;
struct CHeadlineTable;

namespace wirepane {
class SearchDesk;

// Finds the newest news of what is being typed into the search box, at each key, where the view's options and
// the back end have it. Interface thread only.
class TypedSearch : public QObject {
    Q_OBJECT

public:
    struct Found {
        CSearch condition;
        const std::vector<CHeadlineTable>& newest;
        bool isAll = false;
        std::chrono::milliseconds took{};
    };
    // Never hears of anything but what was typed last.
    using Show = std::function<void(const Found& found)>;
    TypedSearch(const CommonParts& parts, const SearchDesk& searches, Show show);

    // From here on.
    void follow(SearchEdit2& box);
    // What is typed is nobody's concern any more.
    void stop() { asked.reset(); }

private:
    void find(const QString& text);

    const CommonParts parts;
    const SearchDesk& searches;
    const Show show;
    std::shared_ptr<const void> asked;
};

}  // namespace wirepane
