// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/slots.h"

#include <algorithm>

namespace wirepane::sample {

namespace {

// The terms of a warrant are its own, not the event's. Only scenes about warrants have one.
int term(const Scene& scene, std::uint64_t name, int low, int high) {
    return inRange(hashOf(name, static_cast<std::uint64_t>(scene.warrant()->code.toInt())), low, high);
}

std::int64_t strikeOf(const Scene& scene) {
    const std::int64_t price = scene.company().price;
    const int step = price < 5'000 ? 10 : 50;
    return std::max<std::int64_t>(price * term(scene, fact("strike"), 82, 122) / 100 / step, 1) * step;
}

void writeStrikeBefore(Writer& w) {
    const std::int64_t now = strikeOf(w.scene);
    w.price(now + std::max<std::int64_t>(now * w.scene.draw(fact("strike step"), 12, 48) / 1000, 5));
}

constexpr Slot table[] = {
    {"warrant", [](Writer& w) { w.text(w.scene.warrant()->name); }},
    {"wcode", [](Writer& w) { w.text(w.scene.warrant()->code); }},
    {"strike", [](Writer& w) { w.price(strikeOf(w.scene)); }},
    {"strikeold", writeStrikeBefore},
    {"ratio", [](Writer& w) { w.decimal(term(w.scene, fact("ratio"), 2, 40) * 5, 3); }},
    {"wprice", [](Writer& w) { w.price(term(w.scene, fact("issue price"), 12, 48) * 5); }},
    {"wunits", [](Writer& w) { w.integer(term(w.scene, fact("units"), 1, 5) * 5'000); }},
    {"iv", [](Writer& w) { w.decimal(w.scene.draw(fact("volatility"), 318, 724), 1); }},
    {"leverage", [](Writer& w) { w.decimal(w.scene.draw(fact("leverage"), 31, 89), 1); }},
    {"soldshare", [](Writer& w) { w.decimal(w.scene.draw(fact("sold share"), 801, 968), 1); }},
};

}  // namespace

std::span<const Slot> warrantSlots() {
    return table;
}

}  // namespace wirepane::sample
