// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/markup_tag.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 40;
constexpr int quotesForgiven = 16;

struct KnownTag {
    std::string_view name;
    TagEffect effect;
};

constexpr auto none = TagEffect::None;
constexpr auto block = TagEffect::Paragraph;

constexpr std::array<KnownTag, 68> knownTags{{
    {"a", none},
    {"abbr", none},
    {"acronym", none},
    {"b", none},
    {"big", none},
    {"cite", none},
    {"code", none},
    {"del", none},
    {"em", none},
    {"font", none},
    {"i", none},
    {"img", none},
    {"ins", none},
    {"kbd", none},
    {"nobr", none},
    {"q", none},
    {"s", none},
    {"samp", none},
    {"small", none},
    {"span", none},
    {"strike", none},
    {"strong", none},
    {"sub", none},
    {"sup", none},
    {"tt", none},
    {"u", none},
    {"var", none},
    {"wbr", none},
    {"address", block},
    {"article", block},
    {"aside", block},
    {"blockquote", block},
    {"body", block},
    {"br", block},
    {"caption", block},
    {"center", block},
    {"dd", block},
    {"div", block},
    {"dl", block},
    {"dt", block},
    {"figcaption", block},
    {"figure", block},
    {"footer", block},
    {"form", block},
    {"h1", block},
    {"h2", block},
    {"h3", block},
    {"h4", block},
    {"h5", block},
    {"h6", block},
    {"header", block},
    {"hr", block},
    {"html", block},
    {"li", block},
    {"main", block},
    {"nav", block},
    {"ol", block},
    {"p", block},
    {"pre", block},
    {"section", block},
    {"table", block},
    {"tr", block},
    {"ul", block},
    {"td", TagEffect::Gap},
    {"th", TagEffect::Gap},
    {"script", TagEffect::Hidden},
    {"style", TagEffect::Hidden},
    {"title", TagEffect::Hidden},
}};

// Tags whose names may as well stand between such brackets in plain text, as the symbol of a company does
// ("<VIDEO>"): where it is not said that a text is markup they count when they close or say more than their
// name. What is drawn, framed or kept for later is no text; what stands in a player is shown where there is
// none.
constexpr std::array<KnownTag, 56> furtherTags{{
    {"area", none},
    {"base", none},
    {"bdi", none},
    {"bdo", none},
    {"col", none},
    {"data", none},
    {"dfn", none},
    {"embed", none},
    {"input", none},
    {"label", none},
    {"link", none},
    {"map", none},
    {"mark", none},
    {"meta", none},
    {"meter", none},
    {"output", none},
    {"param", none},
    {"picture", none},
    {"progress", none},
    {"rp", none},
    {"rt", none},
    {"ruby", none},
    {"source", none},
    {"time", none},
    {"track", none},
    {"audio", block},
    {"button", block},
    {"canvas", block},
    {"colgroup", block},
    {"details", block},
    {"dialog", block},
    {"dir", block},
    {"fieldset", block},
    {"frameset", block},
    {"head", block},
    {"hgroup", block},
    {"legend", block},
    {"menu", block},
    {"noscript", block},
    {"object", block},
    {"optgroup", block},
    {"search", block},
    {"select", block},
    {"summary", block},
    {"tbody", block},
    {"textarea", block},
    {"tfoot", block},
    {"thead", block},
    {"video", block},
    {"option", TagEffect::Gap},
    {"iframe", TagEffect::Hidden},
    {"math", TagEffect::Hidden},
    {"noembed", TagEffect::Hidden},
    {"noframes", TagEffect::Hidden},
    {"svg", TagEffect::Hidden},
    {"template", TagEffect::Hidden},
}};

bool isLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isNamePart(QChar c) {
    return c.isLetterOrNumber() || c == u':' || c == u'-' || c == u'_' || c == u'.';
}

template <std::size_t size>
const KnownTag* tagOf(const std::array<KnownTag, size>& tags, QStringView name) {
    const auto* found = std::find_if(tags.begin(), tags.end(), [&](const KnownTag& tag) {
        return name.size() == qsizetype(tag.name.size()) &&
               name.compare(QLatin1StringView(tag.name.data(), name.size()), Qt::CaseInsensitive) == 0;
    });
    return found == tags.end() ? nullptr : found;
}

// Whether a tag whose name ends before `rest` says more than its name.
bool saysMore(QStringView rest) {
    const auto* first = std::find_if_not(rest.begin(), rest.end(), [](QChar c) { return c.isSpace(); });
    return first != rest.begin() && first != rest.end() && *first != u'>';
}

// Index behind the first `mark` from `start` on, or the end of the text.
qsizetype behind(QStringView text, QLatin1StringView mark, qsizetype start) {
    const qsizetype found = text.indexOf(mark, start);
    return found < 0 ? text.size() : found + mark.size();
}

// Index of the ">" that ends the tag, quoted attribute values left out; nothing when the text ends before.
std::optional<qsizetype> endOutsideQuotes(QStringView text, qsizetype start) {
    QChar quote;
    QChar before;  // the last character that is not a blank
    for (qsizetype at = start; at < text.size(); ++at) {
        const QChar c = text.at(at);
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == u'>') {
            return at;
        } else if ((c == u'"' || c == u'\'') && before == u'=') {
            quote = c;
        }
        if (!c.isSpace())
            before = c;
    }
    return std::nullopt;
}

}  // namespace

MarkupTag MarkupTags::tagAt(qsizetype start) {
    MarkupTag tag;
    const QStringView rest = text.sliced(start + 1);
    if (rest.startsWith("!--"_L1)) {
        tag.end = behind(text, "-->"_L1, start + 4);
    } else if (rest.startsWith(u'!') || rest.startsWith(u'?')) {
        tag.end = endOfTag(start + 1);
    } else {
        tag.closing = rest.startsWith(u'/');
        const QStringView nameAndMore = rest.sliced(tag.closing ? 1 : 0).left(longestName);
        const auto* nameEnd = std::find_if_not(nameAndMore.begin(), nameAndMore.end(), isNamePart);
        tag.name = nameAndMore.first(nameEnd - nameAndMore.begin());
        if (tag.name.isEmpty() || !isLetter(tag.name.front()))
            return tag;
        const KnownTag* known = tagOf(knownTags, tag.name);
        const KnownTag* further = known == nullptr ? tagOf(furtherTags, tag.name) : nullptr;
        if (which == Tags::All || tag.closing || saysMore(nameAndMore.sliced(tag.name.size())))
            known = known != nullptr ? known : further;
        if (known == nullptr && which == Tags::KnownOnly)
            return tag;
        tag.end = endOfTag(start + 1);
        tag.effect = known != nullptr ? known->effect : TagEffect::None;
        tag.isEmpty = tag.end >= 2 && text.at(tag.end - 2) == u'/';
    }
    return tag;
}

// A quote that is never closed would swallow the rest of the text: then the first ">" ends the tag. Both
// searches that run to the end of the text are counted, so that a text full of such tags costs no more than a
// few of them.
qsizetype MarkupTags::endOfTag(qsizetype start) {
    if (noMoreEnds)
        return 0;
    if (unclosedQuotes < quotesForgiven) {
        if (const auto end = endOutsideQuotes(text, start))
            return *end + 1;
        ++unclosedQuotes;
    }
    const qsizetype end = text.indexOf(u'>', start);
    noMoreEnds = end < 0;
    return end + 1;
}

}  // namespace wirepane
