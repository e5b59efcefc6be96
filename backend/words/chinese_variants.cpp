// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/words/chinese_variants.h"

#include <QList>
#include <QString>

#include <list>
#include <opencc/Config.hpp>
#include <opencc/Conversion.hpp>
#include <opencc/ConversionChain.hpp>
#include <opencc/Converter.hpp>
#include <opencc/Dict.hpp>
#include <opencc/DictEntry.hpp>
#include <opencc/Exception.hpp>
#include <opencc/Lexicon.hpp>
#include <tuple>
#include <unordered_set>

namespace wirepane {

namespace {

// Sets of characters that grow together.
class CharacterSets {
public:
    void unite(const QList<uint>& some, const QList<uint>& others) {
        // What becomes longer or shorter tells of no character what it becomes.
        if (some.size() != others.size())
            return;
        for (qsizetype i = 0; i < some.size(); ++i)
            unite(some.at(i), others.at(i));
    }
    // Tells that a character is Traditional: it becomes another one by itself.
    void noteTraditional(char32_t c) { traditional.insert(c); }

    std::unordered_map<char32_t, char32_t> result() {
        std::unordered_map<char32_t, char32_t> all;
        for (const auto& [c, parent] : parents)
            all.emplace(c, rootOf(c));
        return all;
    }

private:
    // The better one is the root.
    void unite(char32_t a, char32_t b) {
        if (a == b)
            return;
        a = rootOf(a);
        b = rootOf(b);
        if (a != b)
            parents[rank(a) < rank(b) ? b : a] = rank(a) < rank(b) ? a : b;
    }
    std::tuple<bool, bool, char32_t> rank(char32_t c) const {
        return {c >= 0x10000, traditional.count(c) > 0, c};
    }
    char32_t rootOf(char32_t c) {
        while (parents.try_emplace(c, c).first->second != c)
            c = parents[c];
        return c;
    }

    std::unordered_map<char32_t, char32_t> parents;
    std::unordered_set<char32_t> traditional;
};

QList<uint> charactersOf(const std::string& text) {
    return QString::fromStdString(text).toUcs4();
}

using Entry = std::pair<QList<uint>, std::vector<QList<uint>>>;

// What the tables of a conversion say; nothing where they are not installed.
std::vector<Entry> entriesOf(const char* conversion) try {
    std::vector<Entry> entries;
    const opencc::ConverterPtr converter = opencc::Config().NewFromFile(conversion);
    for (const opencc::ConversionPtr& step : converter->GetConversionChain()->GetConversions()) {
        const opencc::LexiconPtr lexicon = step->GetDict()->GetLexicon();
        for (const auto& read : *lexicon) {
            Entry& entry = entries.emplace_back(charactersOf(read->Key()), std::vector<QList<uint>>());
            for (const std::string& value : read->Values())
                entry.second.push_back(charactersOf(value));
        }
    }
    return entries;
} catch (const opencc::Exception&) {
    return {};
}

}  // namespace

std::unordered_map<char32_t, char32_t> chineseVariants() {
    CharacterSets sets;
    const std::vector<Entry> simplified = entriesOf("t2s.json");
    for (const auto& [key, values] : simplified) {
        if (key.size() == 1 && !values.empty() && values.front() != key)
            sets.noteTraditional(key.front());
    }
    const auto unite = [&](const std::vector<Entry>& entries) {
        for (const auto& [key, values] : entries) {
            for (const QList<uint>& value : values)
                sets.unite(key, value);
        }
    };
    unite(simplified);
    unite(entriesOf("t2hk.json"));
    unite(entriesOf("t2tw.json"));
    return sets.result();
}

}  // namespace wirepane
