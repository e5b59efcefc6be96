// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"
#include "news_view/common_parts.h"

#include <QLatin1StringView>
#include <QString>

#include <functional>
#include <optional>
#include <set>
#include <tuple>

namespace wirepane {
class RelationMatcher;
class ViewContext;
enum class ListIndex : int;

// What the user has sent again: headlines and tables, and the back end's answers; and the lists that are
// read anew because the back end has more for them. Interface thread only.
class SentAgain {
public:
    // What the lists stand for at the moment.
    struct Choices {
        std::function<QString()> dateKey;  // yyyymmdd
        std::function<std::optional<QString>()> categoryId;
        std::function<CSymbolInfo()> symbol;        // the current news symbol
        std::function<CSymbolInfo()> listedSymbol;  // whose news the symbol list is to hold
        std::function<const RelationMatcher&()> keySets;
        std::function<QString()> statusText;
    };
    SentAgain(ViewContext& context, const CommonParts& parts, Choices choices);

    // Asks for the headlines of the selected rows, for the shown list's table.
    void askForHeadlines();
    void askForTable();

    // A table was sent again. An answer that no longer fits what the view shows is dropped; one without data
    // is told in a tip, and names its service in the status text.
    void takeDateTable(const CHeadlineTableInfo& info);
    void takeCategoryTable(const CHeadlineTableInfo& info);
    void takeSymbolTable(const CHeadlineTableInfo& info);

    // Reads a list anew, for what it stands at the moment. True when it has rows.
    bool read(ListIndex list);
    // The same; what the reader looks at stays where it is.
    void readAgain(ListIndex list);
    // A list that was never shown is read when it is; those of symbols and warrants are at every switch to
    // them.
    void readNowOrWhenShown(ListIndex list);

private:
    // What a tip says of a table without data: the status text, the separator, the key's text.
    struct NothingFound {
        QLatin1StringView key;
        QString separator;
    };
    bool take(const CHeadlineTableInfo& info, ListIndex list, bool asked, const std::function<bool()>& read,
              const NothingFound& nothingFound);
    bool takeAsked(ListIndex list, const CHeadlineTableInfo& info);
    void takeAnnouncedDate(const CHeadlineTableInfo& info);
    QString withServiceName(const QString& name) const;
    bool isServiceSelected(unsigned char service) const;
    bool readsUnasked() const;
    bool readRelation();

    ViewContext& context;
    const CommonParts parts;
    const Choices choices;
    // Tables that this view has asked for, by the list that shows them.
    std::set<std::tuple<ListIndex, unsigned char, QString>> askedTables;  // service, key
};

}  // namespace wirepane
