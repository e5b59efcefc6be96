// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QObject>
#include <QString>

namespace wirepane {

// How the row of a headline stands out in lists.
struct HeadlineLook {
    static constexpr int tints = 6;  // red, orange, green, cyan, blue, violet

    int tint = 0;           // from 1 to `tints`; 0: none
    QString tag;            // a short plain text, in one line; empty: none
    bool isWanted = false;  // the user is told of it, also where it has neither

    bool operator==(const HeadlineLook&) const = default;
};

// Tells that headlines may look otherwise.
class WIREPANE_CONTRACT_EXPORT LookTeller : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~LookTeller() override;

Q_SIGNALS:
    void changed();
};

// Optional for back ends, beside BKQuoteInterface: which headlines stand out in every list, and how, as the
// user has told the host. Interface thread.
class WIREPANE_CONTRACT_EXPORT HeadlineLooks {
public:
    virtual ~HeadlineLooks();

    // Asked for each row that is drawn: answered from memory or an index.
    virtual HeadlineLook lookOf(const HeadlineKey& key) = 0;
    // Lives as long as this.
    virtual LookTeller& lookTeller() = 0;
    // The user wants to be told of what a query finds as it comes (docs/search.md, of alerts): has him decide
    // how, and returns when he has. `name` is what he knows it by.
    virtual void proposeAlert(const QString& name, const QString& query) = 0;
};

}  // namespace wirepane
