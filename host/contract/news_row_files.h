// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/news_rows.h"
#include "host/contract/records.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace wirepane {

// What has come of a file of rows. Only one that is written as a whole is there; another file of its name
// stays as it is otherwise.
struct RowFileOutcome {
    enum class End {
        Written,
        Stopped,     // by who asked for it
        NotWritten,  // the file cannot be written
        Unreadable,  // the news cannot be read
    };
    End end = End::Written;
    int rows = 0;
    std::int64_t bytes = 0;
    QString reason;  // NotWritten: what the system says
};

// Optional for back ends, beside BKQuoteInterface: whoever has the news writes it to files of rows. Interface
// thread.
class WIREPANE_CONTRACT_EXPORT NewsRowFiles {
public:
    virtual ~NewsRowFiles();

    struct Tellers {
        std::function<void(int done)> progress;  // how many entries are behind it; a few times a second
        std::function<void(const RowFileOutcome&)> end;
    };
    // Writes the news of these entries, in their order and with its stories, without holding the interface
    // thread up; entries without a headline are left out. Tells from the event loop, as long as what is
    // returned is kept: who lets it go stops the writing and is not told any more.
    [[nodiscard]] virtual std::shared_ptr<const void> writeRowFile(std::vector<CHeadlineTable> entries,
                                                                   NewsRowForm form, const QString& file,
                                                                   Tellers tellers) = 0;
};

}  // namespace wirepane
