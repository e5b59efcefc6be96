// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/search_query.h"

#include "host/contract/query/query_symbol.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using Kind = QueryNode::Kind;
using Fault = QueryFaultKind;

constexpr int wordsBetweenByItself = 10;  // of a NEAR without a number

// Input methods write wide signs and curly quotes.
bool isQuote(QChar c) {
    return QStringView(u"\"“”„‟＂").contains(c);
}
bool isOpening(QChar c) {
    return c == u'(' || c == u'（';
}
bool isClosing(QChar c) {
    return c == u')' || c == u'）';
}
bool isBar(QChar c) {
    return c == u'|' || c == u'｜';
}
bool isMinus(QChar c) {
    return c == u'-' || c == u'－';
}
bool isStar(QChar c) {
    return c == u'*' || c == u'＊';
}
bool endsWord(QChar c) {
    return c.isSpace() || isQuote(c) || isOpening(c) || isClosing(c) || isBar(c);
}

enum class FieldKind { Title, Story, Topic, Service, Symbol, From, To, On, Is };
struct FieldRow {
    QLatin1StringView name;
    FieldKind kind;
};
constexpr std::array fieldRows{FieldRow{QLatin1StringView("title"), FieldKind::Title},
                               FieldRow{QLatin1StringView("story"), FieldKind::Story},
                               FieldRow{QLatin1StringView("topic"), FieldKind::Topic},
                               FieldRow{QLatin1StringView("service"), FieldKind::Service},
                               FieldRow{QLatin1StringView("symbol"), FieldKind::Symbol},
                               FieldRow{QLatin1StringView("from"), FieldKind::From},
                               FieldRow{QLatin1StringView("to"), FieldKind::To},
                               FieldRow{QLatin1StringView("on"), FieldKind::On},
                               FieldRow{QLatin1StringView("is"), FieldKind::Is}};

struct StateRow {
    QLatin1StringView name;
    QueryState state;
};
constexpr std::array stateRows{StateRow{QLatin1StringView("unread"), QueryState::Unread},
                               StateRow{QLatin1StringView("read"), QueryState::Read},
                               StateRow{QLatin1StringView("starred"), QueryState::Starred},
                               StateRow{QLatin1StringView("withdrawn"), QueryState::Withdrawn}};

std::optional<QueryState> stateNamed(QStringView name) {
    const auto row = std::find_if(stateRows.begin(), stateRows.end(), [&](const StateRow& known) {
        return name.trimmed().compare(known.name, Qt::CaseInsensitive) == 0;
    });
    return row == stateRows.end() ? std::nullopt : std::optional(row->state);
}

std::optional<FieldKind> fieldNamed(QStringView name) {
    const auto row = std::find_if(fieldRows.begin(), fieldRows.end(), [&](const FieldRow& known) {
        return name.compare(known.name, Qt::CaseInsensitive) == 0;
    });
    return row == fieldRows.end() ? std::nullopt : std::optional(row->kind);
}

Kind kindOf(FieldKind field) {
    switch (field) {
        case FieldKind::Topic:
            return Kind::Topic;
        case FieldKind::Service:
            return Kind::Service;
        case FieldKind::Symbol:
            return Kind::Symbol;
        case FieldKind::Is:
            return Kind::State;
        default:
            return Kind::Days;
    }
}

// The letters of a to z before a colon at the start of a word; none: 0.
qsizetype lengthOfFieldName(QStringView word) {
    const auto* const end = std::find_if(word.begin(), word.end(), [](QChar c) {
        return !(c >= u'a' && c <= u'z') && !(c >= u'A' && c <= u'Z');
    });
    return end != word.end() && (*end == u':' || *end == u'：') ? end - word.begin() : 0;
}

bool isOperatorWord(QStringView word) {
    return word == "AND"_L1 || word == "OR"_L1 || word == "NOT"_L1;
}

// Reads by recursive descent; each function leaves `at` behind what it has read. Nothing: `fault` says why.
class QueryReader {
public:
    QueryReader(QStringView query, QueryUse itsUse) : text(query), use(itsUse) {}

    ReadQuery read() {
        if (text.size() > longestQuery)
            return QueryFault{Fault::TooLong, longestQuery, QString::number(longestQuery),
                              characterAt(longestQuery)};
        skipBlanks();
        if (at == text.size())
            return QueryFault{};
        auto root = readAny();
        if (root && at < text.size())
            root = fail(Fault::CloseBracket, at, 1);
        return root ? ReadQuery(*std::move(root)) : ReadQuery(fault);
    }

private:
    using Node = std::optional<QueryNode>;

    std::nullopt_t fail(Fault kind, qsizetype position, qsizetype length) {
        fault = {kind, position, text.mid(position, length).toString(), characterAt(position)};
        return std::nullopt;
    }
    qsizetype characterAt(qsizetype position) const {
        return 1 + std::ranges::count_if(text.first(position), [](QChar c) { return !c.isLowSurrogate(); });
    }
    bool isAtEnd() const { return at == text.size(); }
    bool isAt(bool (*sign)(QChar)) const { return !isAtEnd() && sign(text[at]); }
    void skipBlanks() {
        while (!isAtEnd() && text[at].isSpace())
            ++at;
    }
    std::nullopt_t failOfHeadlines(qsizetype position, qsizetype length) {
        return fail(Fault::NotOfHeadlines, position, length);
    }
    QStringView wordHere() const {
        qsizetype end = at;
        while (end < text.size() && !endsWord(text[end]))
            ++end;
        return text.sliced(at, end - at);
    }
    // Of what has been read since `start`.
    QueryNode nodeFrom(qsizetype start, Kind kind) const {
        QueryNode node;
        node.kind = kind;
        node.position = start;
        node.length = at - start;
        return node;
    }
    Node joined(Kind kind, qsizetype start, std::vector<QueryNode> parts) const {
        if (parts.size() == 1)
            return std::move(parts.front());
        QueryNode node = nodeFrom(start, kind);
        node.parts = std::move(parts);
        return node;
    }

    Node readAny() {
        std::vector<QueryNode> parts;
        skipBlanks();
        const qsizetype start = at;
        for (;;) {
            Node part = readAll();
            if (!part)
                return part;
            parts.push_back(*std::move(part));
            if (!isAt(isBar))
                return joined(Kind::Any, start, std::move(parts));
            ++at;
        }
    }
    Node readAll() {
        std::vector<QueryNode> parts;
        skipBlanks();
        const qsizetype start = at;
        qsizetype end = at;
        for (; !isAtEnd() && !isAt(isBar) && !isAt(isClosing); skipBlanks()) {
            const qsizetype from = at;
            Node part = readFactor();
            if (!part)
                return part;
            part->position = from;
            part->length = at - from;
            parts.push_back(*std::move(part));
            end = at;
        }
        if (parts.empty())
            return fail(depth == 0 && isAt(isClosing) ? Fault::CloseBracket : Fault::Missing, at, 1);
        Node all = joined(Kind::All, start, std::move(parts));
        if (all->kind == Kind::All && all->position == start)
            all->length = end - start;
        return all;
    }
    Node readFactor() {
        if (!isAt(isMinus))
            return readNear();
        const qsizetype start = at++;
        if (isAtEnd() || text[at].isSpace() || isAt(isMinus) || isAt(isBar) || isAt(isClosing))
            return fail(Fault::Missing, start, 1);
        Node excluded = readNear();
        if (!excluded)
            return excluded;
        QueryNode node = nodeFrom(start, Kind::Not);
        node.parts.push_back(*std::move(excluded));
        return node;
    }

    bool isNearHere() const {
        const QStringView word = wordHere();
        return word == "NEAR"_L1 || word.startsWith("NEAR/"_L1);
    }
    // Goes behind the sign; nothing: its number is none.
    std::optional<int> readNearSign() {
        const QStringView word = wordHere();
        const QStringView digits = word.mid(5);
        bool isNumber = false;
        const int words = word.size() == 4 ? wordsBetweenByItself : digits.toInt(&isNumber);
        const bool isPlain = digits.size() <= 5 && !digits.contains(u'+') && !digits.contains(u'-');
        if (word.size() > 4 && (!isNumber || !isPlain || words > mostWordsBetween))
            return fail(Fault::NearNumber, at, word.size());
        at += word.size();
        return words;
    }
    Node readNear() {
        const qsizetype start = at;
        if (isNearHere())
            return fail(Fault::Near, at, wordHere().size());
        Node first = readPrimary();
        const qsizetype end = at;
        skipBlanks();
        if (!first || !isNearHere()) {
            at = end;
            return first;
        }
        const qsizetype sign = at;
        const qsizetype signLength = wordHere().size();
        if (use != QueryUse::News)
            return failOfHeadlines(sign, signLength);
        const auto words = readNearSign();
        if (!words)
            return std::nullopt;
        skipBlanks();
        if (isAtEnd() || isAt(isMinus) || isAt(isBar) || isAt(isClosing) || isNearHere())
            return fail(Fault::Near, sign, signLength);
        const bool isText = first->kind == Kind::Text && !wasEnclosed;
        Node second = readPrimary();
        if (!second)
            return second;
        QueryNode node = nodeFrom(start, Kind::Near);
        const bool areTexts = isText && second->kind == Kind::Text && !wasEnclosed;
        const qsizetype behind = at;
        skipBlanks();
        if (!areTexts || isNearHere())
            return fail(Fault::Near, areTexts ? at : sign, areTexts ? wordHere().size() : signLength);
        at = behind;
        node.near = *words;
        node.field = field;
        node.parts.push_back(*std::move(first));
        node.parts.push_back(*std::move(second));
        return node;
    }

    Node readPrimary() {
        if (isAt(isOpening))
            return readBrackets();
        if (isAt(isQuote)) {
            auto words = readQuoted();
            return words ? readText(*words, at - words->size() - 2) : std::nullopt;
        }
        const qsizetype start = at;
        const QStringView word = wordHere();
        if (const qsizetype name = lengthOfFieldName(word); name > 0) {
            const auto known = fieldNamed(word.first(name));
            const qsizetype behind = at + name + 1;
            const bool isBare = behind == text.size() || text[behind].isSpace() || isBar(text[behind]) ||
                                isClosing(text[behind]);
            if (known || !isBare) {
                at = behind;
                return readField(known, isBare, start, name);
            }
        }
        if (isOperatorWord(word))
            return fail(Fault::OperatorWord, at, word.size());
        at += word.size();
        return readText(word, start);
    }
    Node readBrackets() {
        const qsizetype start = at++;
        if (++depth > deepestQuery)
            return fail(Fault::TooDeep, start, 1);
        Node inner = readAny();
        if (!inner)
            return isAtEnd() && fault.kind == Fault::Missing ? Node(fail(Fault::OpenBracket, start, 1))
                                                             : inner;
        if (isAtEnd())
            return fail(Fault::OpenBracket, start, 1);
        --depth;
        ++at;
        wasEnclosed = true;
        return inner;
    }
    // Goes behind the closing mark.
    std::optional<QStringView> readQuoted() {
        const qsizetype start = at;
        const auto* const end = std::find_if(text.begin() + at + 1, text.end(), isQuote);
        if (end == text.end())
            return fail(Fault::OpenQuote, start, 1);
        const QStringView inner = text.sliced(start + 1, end - text.begin() - start - 1);
        at = end - text.begin() + 1;
        if (inner.trimmed().isEmpty())
            return fail(Fault::Missing, start, inner.size() + 2);
        return inner;
    }
    // A star belongs to a word, and may follow a quotation mark.
    Node readText(QStringView words, qsizetype start) {
        const bool isQuoted = isQuote(text[start]);
        const bool isCut = isQuoted ? isAt(isStar) : isStar(words.back());
        if (isQuoted && isCut)
            ++at;
        if (!isQuoted && isCut)
            words.chop(1);
        if (words.isEmpty())
            return fail(Fault::Missing, start, 1);
        if (isCut && use != QueryUse::News && use != QueryUse::Titles)
            return failOfHeadlines(at - 1, 1);
        wasEnclosed = false;
        QueryNode node = nodeFrom(start, Kind::Text);
        node.text = words.toString();
        node.field = field;
        node.isCut = isCut;
        return counted(std::move(node));
    }
    Node counted(QueryNode node) {
        if (++texts > mostQueryTexts)
            return fail(Fault::TooMany, node.position, node.length);
        return node;
    }

    Node readField(std::optional<FieldKind> known, bool isBare, qsizetype start, qsizetype nameLength) {
        if (!known)
            return fail(Fault::UnknownField, start, nameLength);
        if (fieldDepth > 0)
            return fail(Fault::FieldWithin, start, nameLength);
        const bool isStory = *known == FieldKind::Story;
        const bool isText = isStory || *known == FieldKind::Title;
        const bool isOfStore = kindOf(*known) == Kind::Days || kindOf(*known) == Kind::State;
        if (use != QueryUse::News && (isText ? isStory && use != QueryUse::Alerts : isOfStore))
            return failOfHeadlines(start, nameLength);
        if (isBare)
            return fail(Fault::FieldValue, start, nameLength);
        Node node = isText ? readInField(*known, start, nameLength) : readValue(*known, start, nameLength);
        wasEnclosed = true;
        return node;
    }
    Node readInField(FieldKind kind, qsizetype start, qsizetype nameLength) {
        if (isAt(isMinus))
            return fail(Fault::FieldValue, start, nameLength);
        if (isNearHere())
            return fail(Fault::Near, at, wordHere().size());
        field = kind == FieldKind::Title ? QueryField::Title : QueryField::Story;
        ++fieldDepth;
        Node inner = readPrimary();
        --fieldDepth;
        field = QueryField::Anywhere;
        if (inner && inner->parts.empty()) {
            inner->position = start;
            inner->length = at - start;
        }
        return inner;
    }
    Node readValue(FieldKind kind, qsizetype start, qsizetype nameLength) {
        if (isAt(isOpening))
            return fail(Fault::FieldValue, start, nameLength);
        QStringView value = wordHere();
        const qsizetype place = at;
        if (isAt(isQuote)) {
            const auto quoted = readQuoted();
            if (!quoted)
                return std::nullopt;
            value = *quoted;
            if (isAt(isStar))
                return fail(Fault::FieldValue, start, nameLength);
        } else {
            at += value.size();
            if (isStar(value.back()))
                return fail(Fault::FieldValue, start, nameLength);
        }
        QueryNode node = nodeFrom(start, kindOf(kind));
        node.text = value.toString();
        if (node.kind == Kind::Symbol && !readQuerySymbol(value))
            return fail(Fault::FieldValue, start, nameLength);
        if (node.kind == Kind::State) {
            const auto state = stateNamed(value);
            if (!state)
                return fail(Fault::FieldValue, start, nameLength);
            node.state = *state;
        }
        if (node.kind == Kind::Days) {
            const auto day = readQueryDay(value);
            if (!day)
                return fail(Fault::Day, place, at - place);
            if (kind != FieldKind::To)
                node.days.from = day;
            if (kind != FieldKind::From)
                node.days.to = day;
        }
        return counted(std::move(node));
    }

    const QStringView text;
    const QueryUse use;
    qsizetype at = 0;
    int depth = 0;       // brackets
    int fieldDepth = 0;  // 1 within title: and story:
    int texts = 0;
    QueryField field = QueryField::Anywhere;
    bool wasEnclosed = false;  // what was read last stood in brackets or behind a field
    QueryFault fault;
};

constexpr std::array<QLatin1StringView, std::size_t(Fault::Count)> faultKeys{
    QLatin1StringView("ERROR_QUERY_EMPTY"),         QLatin1StringView("ERROR_QUERY_MISSING"),
    QLatin1StringView("ERROR_QUERY_OPEN_QUOTE"),    QLatin1StringView("ERROR_QUERY_OPEN_BRACKET"),
    QLatin1StringView("ERROR_QUERY_CLOSE_BRACKET"), QLatin1StringView("ERROR_QUERY_UNKNOWN_FIELD"),
    QLatin1StringView("ERROR_QUERY_FIELD_VALUE"),   QLatin1StringView("ERROR_QUERY_FIELD_WITHIN"),
    QLatin1StringView("ERROR_QUERY_DAY"),           QLatin1StringView("ERROR_QUERY_NEAR"),
    QLatin1StringView("ERROR_QUERY_NEAR_NUMBER"),   QLatin1StringView("ERROR_QUERY_OPERATOR_WORD"),
    QLatin1StringView("ERROR_QUERY_TOO_LONG"),      QLatin1StringView("ERROR_QUERY_TOO_MANY"),
    QLatin1StringView("ERROR_QUERY_TOO_DEEP"),      QLatin1StringView("ERROR_QUERY_NOT_OF_HEADLINES")};

}  // namespace

ReadQuery readQuery(const QString& query, QueryUse use) {
    return QueryReader(query, use).read();
}

bool asksFor(const QueryNode& query, QueryState state) {
    return (query.kind == Kind::State && query.state == state) ||
           std::any_of(query.parts.begin(), query.parts.end(),
                       [state](const QueryNode& part) { return asksFor(part, state); });
}

bool leavesOutCut(const QueryNode& query) {
    if (query.kind != QueryNode::Kind::Not)
        return std::any_of(query.parts.begin(), query.parts.end(), leavesOutCut);
    const auto holdsCut = [](const QueryNode& node, const auto& self) -> bool {
        return node.isCut || std::any_of(node.parts.begin(), node.parts.end(),
                                         [&](const QueryNode& part) { return self(part, self); });
    };
    return holdsCut(query, holdsCut);
}

QLatin1StringView keyOf(QueryFaultKind kind) {
    return faultKeys.at(std::size_t(kind));
}

}  // namespace wirepane
