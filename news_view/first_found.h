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

// Finds the newest news of a search before all of it is found, where the view's options and the back end have
// that: of what is being typed into the search box, at each key, and of what has been sent. Interface thread
// only.
class FirstFound : public QObject {
    Q_OBJECT

public:
    struct Found {
        CSearch condition;
        const std::vector<CHeadlineTable>& newest;
        bool isAll = false;
        std::chrono::milliseconds took{};
    };
    // Never hears of anything but what was asked for last.
    using Show = std::function<void(const Found& found)>;
    FirstFound(const CommonParts& parts, const SearchDesk& searches, Show showTyped);

    // From here on.
    void follow(SearchEdit2& box);
    // Of a search that is being looked for in the ticked services.
    void find(const CSearch& condition, Show show);
    // Nobody waits for it any more.
    void stop() { asked.reset(); }

private:
    void findTyped(const QString& text);
    bool isWanted() const;

    const CommonParts parts;
    const SearchDesk& searches;
    const Show showTyped;
    std::shared_ptr<const void> asked;
};

}  // namespace wirepane
