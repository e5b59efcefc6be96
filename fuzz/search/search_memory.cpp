// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/search_memory.h"

#include "fuzz/support/fuzz_input.h"
#include "host/contract/cfg_io.h"
#include "host/contract/search_choices.h"
#include "search/key_set_text.h"

#include <algorithm>

namespace wirepane {

namespace {

const ViewSettingPath path;

template <class Values>
bool isWithoutRepeats(const Values& values) {
    return std::all_of(values.begin(), values.end(), [&](const auto& value) {
        return !value.isEmpty() && std::count(values.begin(), values.end(), value) == 1;
    });
}

bool isSame(const CSearch& a, const CSearch& b) {
    return a == b && a.time == b.time && a.keywordSearch == b.keywordSearch;
}

void promiseCondition(const QString& text) {
    const CSearch before{{QStringLiteral("k")}, 1, 2, 3, {}, true};
    CSearch condition = before;
    if (!condition.LoadStringA(text)) {
        promise(isSame(condition, before), "a text that is no condition changes none");
        return;
    }
    promise(std::none_of(condition.keywords.begin(), condition.keywords.end(),
                         [](const QString& keyword) { return keyword.isEmpty(); }),
            "keywords are not empty");
    promise(condition.scope <= lastSearchScope && condition.method <= lastSearchMethod,
            "scope and method are known ones");
    const QString written = condition.GetString();
    promise(!written.contains(u'\n') && !written.contains(u'\r'), "a condition is one line of text");
    CSearch again;
    promise(again.LoadStringA(written) && isSame(again, condition), "a condition is read back as it was");
}

void promiseKeySet(const QString& text) {
    if (const auto keySet = keySetOfText(text)) {
        promise(std::none_of(keySet->keywords.begin(), keySet->keywords.end(),
                             [](const QString& keyword) { return keyword.isEmpty(); }),
                "the keywords of a key set are not empty");
        promise(keySetOfText(textOfKeySet(*keySet)) == *keySet, "a key set is read back as it was");
    }
    CNewsKey composed(CNewsKey::any, {-1, 7}, {text, text.left(text.size() / 2), QStringLiteral("k")});
    std::erase_if(composed.keywords, [](const QString& keyword) { return keyword.isEmpty(); });
    promise(keySetOfText(textOfKeySet(composed)) == composed, "a key set may hold any keywords");
}

void promiseSameMemory(const SearchMemory& a, const SearchMemory& b) {
    const auto same = [](const auto& left, const auto& right) {
        return std::equal(left.begin(), left.end(), right.begin(), right.end(), isSame);
    };
    promise(a.keywordPool == b.keywordPool && a.keySets == b.keySets && same(a.recent, b.recent) &&
                same(a.warnings.items, b.warnings.items) && a.warnings.chosen == b.warnings.chosen,
            "the memory is read back as it was");
}

// All that a view keeps of searches: each setting is a list of these texts, or a number of one of them.
void promiseMemory(const QStringList& texts) {
    MemoryCfgIO stored;
    SearchMemory().write(stored, path);
    for (QVariant& value : stored.values)
        value = value.typeId() == QMetaType::Int ? QVariant(int(texts.size() / 2)) : QVariant(texts);
    const SearchMemory memory = SearchMemory::read(stored, path);
    promise(isWithoutRepeats(memory.keywordPool), "the pool has no keyword twice");
    promise(memory.recent.size() <= mostRecentSearches, "few recent searches are kept");
    promise(memory.warnings.chosen == 0 || memory.warnings.chosenItem() != nullptr,
            "what is chosen is there");
    MemoryCfgIO written;
    memory.write(written, path);
    promiseSameMemory(memory, SearchMemory::read(written, path));
}

}  // namespace

// Search conditions, key sets and what is kept of them, a text per line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QStringList texts = FuzzInput(bytes, size).text().split(u'\n');
    for (const QString& text : texts) {
        promiseCondition(text);
        promiseKeySet(text);
    }
    promiseMemory(texts);
    return 0;
}

}  // namespace wirepane
