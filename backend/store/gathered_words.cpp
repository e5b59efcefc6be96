// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/gathered_words.h"

#include "backend/store/index_writer.h"

#include <utility>

namespace wirepane {

namespace {

constexpr qsizetype muchText = 8 << 20;  // bytes

}  // namespace

void GatheredWords::put(std::int64_t id, const QByteArray& title, const QByteArray& story) {
    changes[id].put = Texts{title, story};
    bytes += title.size() + story.size();
}

void GatheredWords::take(std::int64_t id, const QByteArray& title, const QByteArray& story) {
    Change& change = changes[id];
    // What has not been written needs not be taken out.
    if (change.put) {
        change.put.reset();
        return;
    }
    change.taken = Texts{title, story};
    bytes += title.size() + story.size();
}

bool GatheredWords::isMuch() const {
    return bytes >= muchText;
}

bool GatheredWords::write(IndexWriter& index) {
    bytes = 0;
    for (const auto& [id, change] : std::exchange(changes, {})) {
        if (change.taken && !index.take(id, change.taken->title, change.taken->story))
            return false;
        if (change.put && !index.put(id, change.put->title, change.put->story))
            return false;
    }
    return true;
}

void GatheredWords::clear() {
    changes.clear();
    bytes = 0;
}

}  // namespace wirepane
