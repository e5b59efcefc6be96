// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/cell_state.h"

#include <utility>

namespace wirepane {

size_t qHash(const HeadlineKey& key, size_t seed) noexcept {
    return qHashMulti(seed, key.time, key.sequence, key.service);
}

const WrittenCells* CellState::find(const HeadlineKey& key) const {
    const auto it = written.constFind(key);
    return it == written.constEnd() ? nullptr : &*it;
}

void CellState::write(const HeadlineKey& key, WrittenCells&& cells) {
    otherTimeForm.remove(key);
    written.emplace(key, std::move(cells));
}

void CellState::forget(const HeadlineKey& key) {
    written.remove(key);
    otherTimeForm.remove(key);
}

void CellState::clear() {
    written = {};
    otherTimeForm = {};
}

void CellState::keepOnly(const std::vector<CHeadlineTable>& rows, bool showDate) {
    QHash<HeadlineKey, WrittenCells> kept;
    for (const CHeadlineTable& row : rows) {
        const auto it = written.find(keyOf(row));
        if (it == written.end())
            continue;
        kept.insert(it.key(), *it);
        written.erase(it);
    }
    for (auto it = written.cbegin(); it != written.cend(); ++it) {
        if (it->showDate != showDate)
            otherTimeForm.insert(it.key());
    }
    written = std::move(kept);
}

}  // namespace wirepane
