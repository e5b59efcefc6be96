// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QString>

#include <vector>

class QObject;

namespace wirepane {

// What a user has done with news, in which view.
struct NewsAct {
    enum class Kind {
        Opened,  // a story, by hand
        Searched,
        Printed,
        Saved,
        MarkedRead,
        MarkedUnread,
        Starred,  // or no longer
    };

    Kind kind = Kind::Opened;
    std::vector<HeadlineKey> news = {};  // none: a search
    QString words = {};  // of a search; of what was put out, the file, empty where it was paper
};

// What a host may offer: a diary of what its user does. Views tell it what he has done, once it is done;
// without a diary nobody hears of it. Interface thread; nothing in it may wait.
class WIREPANE_CONTRACT_EXPORT NewsDiary {
public:
    NewsDiary() = default;
    NewsDiary(const NewsDiary&) = delete;
    NewsDiary& operator=(const NewsDiary&) = delete;
    virtual ~NewsDiary();  // uninstalls itself when it is the installed one

    static void install(NewsDiary* diary);
    // Tells the diary of the host, where there is one.
    static void tell(const QObject& view, const NewsAct& act);

protected:
    virtual void note(const QObject& view, const NewsAct& act) = 0;
};

}  // namespace wirepane
