// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/text_changes.h"

#include "story/number_phrases.h"

#include <QHash>

#include <algorithm>
#include <dtl/dtl.hpp>
#include <utility>

namespace wirepane {

namespace {

using Kind = TextPart::Kind;

// What begins and ends alike is not among them. The work grows with their square, at worst.
constexpr std::size_t mostPiecesCompared = 2000;
constexpr qsizetype mostComparedByWords = 1'000'000;  // characters

struct Piece {
    qsizetype from = 0;
    qsizetype length = 0;
};
using Pieces = std::vector<Piece>;

bool isOfWord(QChar c) {
    return c.isLetterOrNumber() && c.unicode() < 0x2E80;
}

// Words, numbers with what is within them, and whatever else stands there character by character.
Pieces wordsOf(QStringView text, const Piece& within) {
    Pieces words;
    const qsizetype end = within.from + within.length;
    for (qsizetype from = within.from; from < end;) {
        qsizetype to = from + 1;
        if (isOfWord(text[from])) {
            const auto goesOn = [&](qsizetype place) {
                return isOfWord(text[place]) ||
                       ((text[place] == u'.' || text[place] == u',') && place + 1 < end &&
                        text[place - 1].isDigit() && text[place + 1].isDigit());
            };
            while (to < end && goesOn(to))
                ++to;
        } else if (text[from].isHighSurrogate() && to < end) {
            ++to;
        }
        words.push_back({from, to - from});
        from = to;
    }
    return words;
}

// Lines, and the breaks between them.
Pieces linesOf(QStringView text) {
    Pieces lines;
    for (qsizetype from = 0; from < text.size();) {
        const qsizetype found = text[from] == u'\n' ? from + 1 : text.indexOf(u'\n', from);
        const qsizetype to = found < 0 ? text.size() : found;
        lines.push_back({from, to - from});
        from = to;
    }
    return lines;
}

// The same text is the same number in both.
class Numbering {
public:
    std::vector<int> of(QStringView text, const Pieces& pieces) {
        std::vector<int> numbers;
        numbers.reserve(pieces.size());
        for (const Piece& piece : pieces) {
            const QStringView word = text.sliced(piece.from, piece.length);
            numbers.push_back(*known.insert(word, known.value(word, int(known.size()))));
        }
        return numbers;
    }

private:
    QHash<QStringView, int> known;
};

class Comparison {
public:
    Comparison(QStringView earlier, QStringView later) : before(earlier), after(later) {}

    std::vector<TextPart> run() {
        compare(linesOf(before), linesOf(after), true);
        return std::move(parts);
    }

private:
    void add(Kind kind, const Piece& piece) {
        if (piece.length == 0)
            return;
        if (!parts.empty() && parts.back().kind == kind &&
            parts.back().from + parts.back().length == piece.from)
            parts.back().length += piece.length;
        else
            parts.push_back({kind, piece.from, piece.length});
    }

    // `isRough`: what differs is looked at word by word.
    void compare(const Pieces& mine, const Pieces& theirs, bool isRough) {
        Numbering numbering;
        const std::vector<int> a = numbering.of(before, mine);
        const std::vector<int> b = numbering.of(after, theirs);
        const auto atFront = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
        const auto front = std::size_t(atFront.first - a.begin());
        const std::size_t longestBack = std::min(a.size(), b.size()) - front;
        std::size_t back = 0;
        while (back < longestBack && a[a.size() - 1 - back] == b[b.size() - 1 - back])
            ++back;
        for (std::size_t i = 0; i < front; ++i)
            add(Kind::Same, theirs[i]);
        compareMiddle({a.begin() + std::ptrdiff_t(front), a.end() - std::ptrdiff_t(back)},
                      {b.begin() + std::ptrdiff_t(front), b.end() - std::ptrdiff_t(back)},
                      {mine.data() + front, theirs.data() + front}, isRough);
        for (std::size_t i = theirs.size() - back; i < theirs.size(); ++i)
            add(Kind::Same, theirs[i]);
    }

    struct Starts {
        const Piece* mine;
        const Piece* theirs;
    };

    void compareMiddle(const std::vector<int>& a, const std::vector<int>& b, Starts at, bool isRough) {
        if (a.empty() || b.empty() || a.size() + b.size() > mostPiecesCompared) {
            differ({at.mine, a.size()}, {at.theirs, b.size()}, isRough);
            return;
        }
        dtl::Diff<int> diff(a, b);
        diff.compose();
        Stretch went{at.mine, 0};
        Stretch came{at.theirs, 0};
        for (const auto& [number, info] : diff.getSes().getSequence()) {
            if (info.type == dtl::SES_DELETE) {
                ++went.count;
            } else if (info.type == dtl::SES_ADD) {
                ++came.count;
            } else {
                differ(went, came, isRough);
                went = {went.first + went.count + 1, 0};
                came = {came.first + came.count + 1, 0};
                add(Kind::Same, came.first[-1]);
            }
        }
        differ(went, came, isRough);
    }

    struct Stretch {
        const Piece* first;
        std::size_t count;
    };
    static Piece wholeOf(const Stretch& stretch) {
        if (stretch.count == 0)
            return {};
        const Piece& last = stretch.first[stretch.count - 1];
        return {stretch.first->from, last.from + last.length - stretch.first->from};
    }

    void differ(const Stretch& went, const Stretch& came, bool isRough) {
        const Piece mine = wholeOf(went);
        const Piece theirs = wholeOf(came);
        if (isRough && mine.length > 0 && theirs.length > 0 &&
            mine.length + theirs.length <= mostComparedByWords) {
            compare(wordsOf(before, mine), wordsOf(after, theirs), false);
            return;
        }
        add(Kind::Removed, mine);
        add(Kind::Added, theirs);
    }

    QStringView before;
    QStringView after;
    std::vector<TextPart> parts;
};

// The numbers that a stretch of a text touches.
class Touched {
public:
    explicit Touched(QStringView whole) : text(whole), phrases(numberPhrases(whole)), next(phrases.begin()) {}

    // Called from the front to the back.
    std::vector<NumberPhrase> by(qsizetype from, qsizetype length) {
        while (next != phrases.end() && next->from + next->length <= from)
            ++next;
        std::vector<NumberPhrase> touched;
        for (; next != phrases.end() && next->from < from + length; ++next)
            touched.push_back(*next);
        return touched;
    }
    QString textOf(const NumberPhrase& phrase) const {
        return text.sliced(phrase.from, phrase.length).toString();
    }

private:
    QStringView text;
    std::vector<NumberPhrase> phrases;
    std::vector<NumberPhrase>::const_iterator next;
};

std::vector<NumberChange> numberChanges(const std::vector<TextPart>& parts, QStringView before,
                                        QStringView after) {
    std::vector<NumberChange> changes;
    Touched earlier(before);
    Touched later(after);
    std::vector<NumberPhrase> went;
    std::vector<NumberPhrase> came;
    const auto settle = [&] {
        for (std::size_t i = 0; i < std::min(went.size(), came.size()); ++i) {
            if (!went[i].saysAs(came[i]))
                changes.push_back({earlier.textOf(went[i]), later.textOf(came[i])});
        }
        went.clear();
        came.clear();
    };
    for (const TextPart& part : parts) {
        if (part.kind == Kind::Same)
            settle();
        std::vector<NumberPhrase>& touched = part.kind == Kind::Removed ? went : came;
        const std::vector<NumberPhrase> more =
            part.kind == Kind::Same
                ? std::vector<NumberPhrase>()
                : (part.kind == Kind::Removed ? earlier : later).by(part.from, part.length);
        touched.insert(touched.end(), more.begin(), more.end());
    }
    settle();
    return changes;
}

}  // namespace

bool TextChanges::areThere() const {
    return std::any_of(parts.begin(), parts.end(),
                       [](const TextPart& part) { return part.kind != Kind::Same; });
}

TextChanges changesBetween(QStringView before, QStringView after) {
    TextChanges changes;
    changes.parts = Comparison(before, after).run();
    changes.numbers = numberChanges(changes.parts, before, after);
    return changes;
}

}  // namespace wirepane
