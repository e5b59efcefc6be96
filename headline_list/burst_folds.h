// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/cell_state.h"
#include "headline_list/fact_words.h"
#include "host/contract/records.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <vector>

namespace wirepane {

// A headline that has just come.
struct BurstArrival {
    HeadlineKey key;
    std::int32_t topic = 0;
    QString symbol;
    QString title;
};

// Which headlines of a list are folded under another. While more of one topic come within a minute than a
// view wants to see, each that comes takes the one before it under itself, with all that this one had. The
// first one that tells of a fact is never folded: one whose symbol and words are not those of one shortly
// before it. What is folded is counted at its head, where it can be unfolded. What a push costs does not
// depend on how much is folded.
class BurstFolds {
public:
    // `mostAMinute`: above 0. Moments are milliseconds of any clock that does not go back.
    void note(const BurstArrival& arrival, std::int64_t now, int mostAMinute);

    struct Fold {
        int count = 0;  // of the headlines under this one; 0: it is the head of none
        bool isOpen = false;
    };
    Fold foldAt(const HeadlineKey& head) const;
    // Opens the fold that a headline is the head of or stands under, or closes it again. False: there is
    // none.
    bool turn(const HeadlineKey& key);
    // As turn, but never closes.
    void open(const HeadlineKey& key);
    // The headline is not in the list any more.
    void forget(const HeadlineKey& key);
    // The same; what stands in its row from here on is seen.
    void letGo(const HeadlineKey& key, const HeadlineKey& now);
    void clear() { *this = BurstFolds(); }

    // What is to go out of sight and to come back since this was last asked; a headline is in one of them.
    struct Changes {
        std::vector<HeadlineKey> hide;
        std::vector<HeadlineKey> show;
    };
    Changes takeChanges();
    // It stays in sight until the changes are taken the next time.
    void hideLater(const HeadlineKey& key) { setInSight(key, false); }
    // All that is folded, for a list that was filled anew.
    void tellAll();

private:
    struct Group {
        HeadlineKey head;
        std::vector<HeadlineKey> under;
        bool isOpen = false;
    };
    struct Told {
        QString symbol;
        FactWords words;
    };
    struct Topic {
        std::deque<std::int64_t> moments;  // of what came within the last minute, as many as decide
        std::deque<Told> told;             // the last ones
        std::optional<HeadlineKey> newest;
        bool newestIsFirst = false;
    };

    bool isBurst(Topic& topic, std::int64_t now, int mostAMinute) const;
    static bool isFirst(Topic& topic, const BurstArrival& arrival);
    void follow(Topic& topic, const HeadlineKey& key, bool isFirst);
    Group* groupOf(const HeadlineKey& key);
    const Group* groupOf(const HeadlineKey& key) const;
    Group& groupAt(const HeadlineKey& head);
    void put(Group& group, const HeadlineKey& key);
    void setOpen(Group& group, bool open);
    void setInSight(const HeadlineKey& key, bool inSight) { changed[key] = inSight; }

    QHash<std::int64_t, Topic> topics;  // by service and topic
    std::map<int, Group> groups;
    QHash<HeadlineKey, int> numbers;  // of the group of a head, and of each under it
    QHash<HeadlineKey, bool> changed;
    int nextNumber = 0;
};

}  // namespace wirepane
