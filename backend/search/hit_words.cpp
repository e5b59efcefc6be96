// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/hit_words.h"

#include "backend/words/search_words.h"

#include <algorithm>

namespace wirepane {

namespace {

using Kind = QueryNode::Kind;

std::string_view viewOf(const QByteArray& word) {
    return {word.constData(), static_cast<std::size_t>(word.size())};
}

// Counts the UTF-16 code units of a text in UTF-8 along with its bytes.
class Units {
public:
    explicit Units(const QByteArray& utf8) : text(utf8) {}

    qsizetype at(qsizetype byte) {
        for (; place < byte; ++place) {
            const auto lead = static_cast<unsigned char>(text[place]);
            units += (lead & 0xc0U) == 0x80 ? 0 : lead >= 0xf0 ? 2 : 1;
        }
        return units;
    }

private:
    const QByteArray& text;
    qsizetype place = 0;
    qsizetype units = 0;
};

bool isAskedFor(QueryField field, HitPlace place) {
    return field == QueryField::Anywhere || (field == QueryField::Title) == (place == HitPlace::Title);
}

}  // namespace

struct HitWords::SplitText {
    QByteArray folded;
    std::vector<Token> tokens;

    std::string_view word(std::size_t token) const {
        return {folded.constData() + tokens[token].from, static_cast<std::size_t>(tokens[token].length)};
    }
};

std::shared_ptr<const HitWords> HitWords::make(const CSearch& condition, QueryPlanner& planner) {
    const std::shared_ptr<HitWords> found(new HitWords);
    if (condition.isQuery()) {
        const ReadQuery read = readQuery(condition.query());
        if (const auto* query = std::get_if<QueryNode>(&read))
            found->collect(*query, planner);
    } else {
        for (const QString& keyword : condition.keywords)
            found->add(keyword, QueryField::Anywhere, false, found->words++);
    }
    return made(found);
}

std::shared_ptr<const HitWords> HitWords::makeOfStories(const QString& query, QueryPlanner& planner) {
    const std::shared_ptr<HitWords> found(new HitWords);
    const ReadQuery read = readQuery(query);
    if (const auto* node = std::get_if<QueryNode>(&read))
        found->collect(*node, planner);
    std::erase_if(found->phrases, [](const Phrase& phrase) { return phrase.field != QueryField::Story; });
    return made(found);
}

std::shared_ptr<const HitWords> HitWords::made(const std::shared_ptr<HitWords>& found) {
    for (std::size_t i = 0; i < found->phrases.size(); ++i) {
        const Phrase& phrase = found->phrases[i];
        if (phrase.isCut && phrase.words.size() == 1)
            found->withCutFirstWord.push_back(i);
        else
            found->byFirstWord[viewOf(phrase.words.front())].push_back(i);
    }
    return found->phrases.empty() ? nullptr : found;
}

void HitWords::collect(const QueryNode& node, QueryPlanner& planner) {
    if (node.kind == Kind::Not)
        return;
    if (node.kind == Kind::Text)
        add(node.text, node.field, node.isCut, words++);
    if (node.kind == Kind::Symbol) {
        for (const QString& name : planner.symbolsMeant(node.text).names)
            add(name, QueryField::Anywhere, false, words);
        ++words;
    }
    for (const QueryNode& part : node.parts)
        collect(part, planner);
}

void HitWords::add(const QString& text, QueryField field, bool isCut, int word) {
    Phrase phrase{{}, field, isCut, word};
    const QByteArray utf8 = keywordText(text).toUtf8();
    WordReader reader(utf8);
    while (reader.next()) {
        if (!reader.isLineEnd())
            phrase.words.emplace_back(reader.word().data(), static_cast<qsizetype>(reader.word().size()));
    }
    if (!phrase.words.empty())
        phrases.push_back(std::move(phrase));
}

bool HitWords::stands(const Phrase& phrase, const SplitText& text, std::size_t at) const {
    if (phrase.words.size() > text.tokens.size() - at)
        return false;
    for (std::size_t i = 0; i < phrase.words.size(); ++i) {
        const std::string_view wanted = viewOf(phrase.words[i]);
        const std::string_view there = text.word(at + i);
        const bool mayGoOn = phrase.isCut && i + 1 == phrase.words.size();
        if (mayGoOn ? !there.starts_with(wanted) : there != wanted)
            return false;
    }
    return true;
}

const HitWords::Phrase* HitWords::longestAt(const SplitText& text, std::size_t at, HitPlace place) const {
    const Phrase* longest = nullptr;
    const auto look = [&](std::size_t number) {
        const Phrase& phrase = phrases[number];
        const bool isLonger = longest == nullptr || phrase.words.size() > longest->words.size();
        if (isLonger && isAskedFor(phrase.field, place) && stands(phrase, text, at))
            longest = &phrase;
    };
    if (const auto begun = byFirstWord.find(text.word(at)); begun != byFirstWord.end())
        std::for_each(begun->second.begin(), begun->second.end(), look);
    std::for_each(withCutFirstWord.begin(), withCutFirstWord.end(), look);
    return longest;
}

std::vector<SearchHit> HitWords::hitsIn(const QString& text, HitPlace place, std::size_t most) const {
    // Where a control ends its lines, the stored text has a line end.
    const QByteArray utf8 = QString(text).replace(QChar(QChar::ParagraphSeparator), u'\n').toUtf8();
    WordReader reader(utf8);
    Units units(utf8);
    SplitText split;
    while (reader.next()) {
        const qsizetype start = units.at(reader.start());
        const auto length = static_cast<qsizetype>(reader.word().size());
        split.tokens.push_back({split.folded.size(), length, start, units.at(reader.end())});
        split.folded.append(reader.word().data(), length);
    }
    std::vector<SearchHit> hits;
    for (std::size_t at = 0; at < split.tokens.size() && hits.size() < most;) {
        const Phrase* phrase = longestAt(split, at, place);
        if (phrase == nullptr) {
            ++at;
            continue;
        }
        const qsizetype start = split.tokens[at].start;
        at += phrase->words.size();
        hits.push_back({start, split.tokens[at - 1].end - start, phrase->word});
    }
    return hits;
}

}  // namespace wirepane
