// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/cell_state.h"

size_t qHash(const HeadlineKey& key, size_t seed) noexcept {
    return qHashMulti(seed, key.time, key.sequence, key.service);
}

const WrittenCells* CellState::find(const HeadlineKey& key) const {
    const auto it = written.constFind(key);
    return it == written.constEnd() ? nullptr : &*it;
}

void CellState::write(const HeadlineKey& key, WrittenCells cells) {
    written.insert(key, std::move(cells));
}
