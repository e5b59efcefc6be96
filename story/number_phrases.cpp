// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/number_phrases.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct Multiple {
    QStringView word;
    double factor;
};

// Where one begins another, the longer one stands first.
constexpr std::array letters{
    Multiple{u"thousand", 1e3},  Multiple{u"million", 1e6}, Multiple{u"billion", 1e9},
    Multiple{u"trillion", 1e12}, Multiple{u"mln", 1e6},     Multiple{u"bln", 1e9},
    Multiple{u"trln", 1e12},     Multiple{u"mn", 1e6},      Multiple{u"bn", 1e9},
    Multiple{u"tn", 1e12},       Multiple{u"m", 1e6},       Multiple{u"k", 1e3},
};
constexpr std::array characters{
    Multiple{u"千", 1e3}, Multiple{u"萬", 1e4}, Multiple{u"万", 1e4},
    Multiple{u"億", 1e8}, Multiple{u"亿", 1e8}, Multiple{u"兆", 1e12},
};

int digitOf(QChar c) {
    if (c >= u'0' && c <= u'9')
        return c.unicode() - u'0';
    return c >= u'０' && c <= u'９' ? c.unicode() - u'０' : -1;
}

bool isPoint(QChar c) {
    return c == u'.' || c == u'．';
}

bool isSeparator(QChar c) {
    return c == u',' || c == u'，';
}

class PhraseReader {
public:
    explicit PhraseReader(QStringView read) : text(read) {}

    // At a digit.
    NumberPhrase phraseAt(qsizetype from) {
        at = from;
        NumberPhrase phrase;
        phrase.value = readNumber() * readMultiples();
        phrase.isShare = readShare();
        phrase.from = from;
        if (isMinusBefore(from)) {
            --phrase.from;
            phrase.value = -phrase.value;
        }
        phrase.length = at - phrase.from;
        return phrase;
    }

private:
    QChar charAt(qsizetype place) const { return place >= 0 && place < text.size() ? text[place] : QChar(); }

    // Of what is no number for us, such as a version with two points, this is the first part.
    double readNumber() {
        QString digits;
        bool hasPoint = false;
        for (; at < text.size(); ++at) {
            if (const int digit = digitOf(text[at]); digit >= 0)
                digits += QChar(u'0' + digit);
            else if (!hasPoint && isPoint(text[at]) && digitOf(charAt(at + 1)) >= 0) {
                hasPoint = true;
                digits += u'.';
            } else if (hasPoint || !isSeparator(text[at]) || !isGroupAt(at + 1)) {
                break;
            }
        }
        return digits.toDouble();
    }

    // Three digits, and not a fourth one.
    bool isGroupAt(qsizetype place) const {
        return digitOf(charAt(place)) >= 0 && digitOf(charAt(place + 1)) >= 0 &&
               digitOf(charAt(place + 2)) >= 0 && digitOf(charAt(place + 3)) < 0;
    }

    double readMultiples() {
        double factor = 1;
        while (const double next = characterFactor())
            factor *= next;
        return factor == 1 ? letterFactor() : factor;
    }

    double characterFactor() {
        const auto* const found =
            std::find_if(characters.begin(), characters.end(),
                         [this](const Multiple& one) { return text.sliced(at).startsWith(one.word); });
        if (found == characters.end())
            return 0;
        at += found->word.size();
        return found->factor;
    }

    // A word of its own behind the number or a blank: "5m" and "5 million", and not "5 men".
    double letterFactor() {
        const qsizetype from = charAt(at) == u' ' ? at + 1 : at;
        qsizetype end = from;
        while (end < text.size() && text[end].isLetter() && text[end].unicode() < 128)
            ++end;
        const QStringView word = text.sliced(std::min(from, text.size()), end - std::min(from, text.size()));
        const auto* const found = std::find_if(letters.begin(), letters.end(), [&](const Multiple& one) {
            return word.compare(one.word, Qt::CaseInsensitive) == 0 && (from == at || one.word.size() > 1);
        });
        if (found == letters.end())
            return 1;
        at = end;
        return found->factor;
    }

    bool readShare() {
        if (charAt(at) == u'%' || charAt(at) == u'％') {
            ++at;
            return true;
        }
        for (const QStringView word : {u" percent", u" per cent"}) {
            if (text.sliced(at).startsWith(word, Qt::CaseInsensitive)) {
                at += word.size();
                return true;
            }
        }
        return false;
    }

    // Not the stroke of "2026-03" or of "A-3".
    bool isMinusBefore(qsizetype from) const {
        const QChar sign = charAt(from - 1);
        return (sign == u'-' || sign == u'−' || sign == u'－') && !charAt(from - 2).isLetterOrNumber();
    }

    QStringView text;
    qsizetype at = 0;
};

}  // namespace

bool NumberPhrase::saysAs(const NumberPhrase& other) const {
    constexpr double rounding = 1e-12;  // of sums that are written in other units
    return isShare == other.isShare &&
           std::abs(value - other.value) <= rounding * std::max(std::abs(value), std::abs(other.value));
}

std::vector<NumberPhrase> numberPhrases(QStringView text) {
    std::vector<NumberPhrase> phrases;
    PhraseReader reader(text);
    for (qsizetype at = 0; at < text.size();) {
        if (digitOf(text[at]) < 0) {
            ++at;
            continue;
        }
        phrases.push_back(reader.phraseAt(at));
        at = phrases.back().from + phrases.back().length;
    }
    return phrases;
}

}  // namespace wirepane
