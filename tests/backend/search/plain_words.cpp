// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/search/plain_words.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <algorithm>
#include <opencc/Config.hpp>
#include <opencc/Conversion.hpp>
#include <opencc/ConversionChain.hpp>
#include <opencc/Converter.hpp>
#include <opencc/Dict.hpp>
#include <opencc/DictEntry.hpp>
#include <opencc/Lexicon.hpp>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

// Which characters the library's tables put for which.
class Neighbours {
public:
    Neighbours() {
        for (const char* name : {"t2s.json", "t2hk.json", "t2tw.json"})
            read(name);
    }
    // The least of all that are reached from a character.
    char32_t leastOf(char32_t c) const {
        QSet<char32_t> reached{c};
        QList<char32_t> waiting{c};
        while (!waiting.isEmpty()) {
            for (const char32_t next : beside.value(waiting.takeLast())) {
                if (!reached.contains(next)) {
                    reached.insert(next);
                    waiting.append(next);
                }
            }
        }
        return *std::min_element(reached.cbegin(), reached.cend());
    }

private:
    void read(const char* name) {
        const auto steps = opencc::Config().NewFromFile(name)->GetConversionChain()->GetConversions();
        for (const auto& step : steps) {
            const auto lexicon = step->GetDict()->GetLexicon();
            for (std::size_t i = 0; i < lexicon->Length(); ++i) {
                for (const std::string& value : lexicon->At(i)->Values())
                    put(QString::fromStdString(lexicon->At(i)->Key()).toUcs4(),
                        QString::fromStdString(value).toUcs4());
            }
        }
    }
    void put(const QList<uint>& from, const QList<uint>& to) {
        for (qsizetype i = 0; from.size() == to.size() && i < from.size(); ++i) {
            if (from[i] == to[i])
                continue;
            beside[from[i]].insert(to[i]);
            beside[to[i]].insert(from[i]);
        }
    }
    QHash<char32_t, QSet<char32_t>> beside;
};

bool isDash(char32_t c) {
    return c == 0x2D || (c >= 0x2010 && c <= 0x2015) || c == 0x2212 || c == 0xFE58 || c == 0xFE63;
}
bool isQuote(char32_t c) {
    return (c >= 0x2018 && c <= 0x201B);
}
bool isDoubleQuote(char32_t c) {
    return c >= 0x201C && c <= 0x201F;
}

// Scripts that are written without blanks, or whose characters are words.
bool standsAlone(char32_t c) {
    switch (QChar::script(c)) {
        case QChar::Script_Han:
        case QChar::Script_Hiragana:
        case QChar::Script_Katakana:
        case QChar::Script_Hangul:
        case QChar::Script_Bopomofo:
        case QChar::Script_Yi:
        case QChar::Script_Thai:
        case QChar::Script_Lao:
        case QChar::Script_Khmer:
        case QChar::Script_Myanmar:
        case QChar::Script_Tibetan:
            return true;
        default:
            return false;
    }
}

bool isDigit(char32_t c) {
    return c >= '0' && c <= '9';
}

QString textOf(char32_t c) {
    return QString::fromUcs4(&c, 1);
}

}  // namespace

class PlainWords::Folding {
public:
    // Nothing: the character is an accent that counts for nothing.
    QList<uint> of(char32_t c) {
        const auto known = cache.constFind(c);
        return known != cache.constEnd() ? *known : *cache.insert(c, fold(c));
    }

private:
    QList<uint> fold(char32_t c) const {
        if (isDash(c))
            return {'-'};
        if (isQuote(c))
            return {'\''};
        if (isDoubleQuote(c))
            return {'"'};
        if (c >= 0x300 && c < 0x370)
            return {};
        QString text = textOf(c);
        const bool hasOtherWidth = c >= 0xFF00 && c <= 0xFFEF;
        if (hasOtherWidth)
            text = text.normalized(QString::NormalizationForm_KC);
        if (QChar::script(c) == QChar::Script_Han)
            return oneOf(text);
        QList<uint> letters;
        for (const uint part : text.normalized(QString::NormalizationForm_D).toUcs4()) {
            if (part < 0x300 || part >= 0x370)
                letters.append(QChar::toCaseFolded(part));
        }
        // What falls into more than one character is none with an accent.
        return letters.size() == 1 ? letters : text.toUcs4();
    }
    QList<uint> oneOf(const QString& text) const {
        QList<uint> characters = text.normalized(QString::NormalizationForm_KC).toUcs4();
        for (uint& c : characters)
            c = neighbours.leastOf(c);
        return characters;
    }

    Neighbours neighbours;
    QHash<char32_t, QList<uint>> cache;
};

PlainWords::PlainWords() : folding(std::make_unique<Folding>()) {}
PlainWords::~PlainWords() = default;

namespace {

// Reads a number from `at` on: digits, and behind points more digits, behind commas groups of three.
qsizetype endOfNumber(const QList<uint>& text, qsizetype at) {
    const auto digitAt = [&](qsizetype i) { return i < text.size() && isDigit(text[i]); };
    for (bool grouped = false;;) {
        const qsizetype start = at;
        while (digitAt(at))
            ++at;
        const bool isPoint = at < text.size() && text[at] == '.' && digitAt(at + 1);
        const bool isGroup = at < text.size() && text[at] == ',' && digitAt(at + 1) && digitAt(at + 2) &&
                             digitAt(at + 3) && !digitAt(at + 4) &&
                             (grouped ? at - start == 3 : at - start <= 3);
        if (!isPoint && !isGroup)
            return at;
        grouped = isGroup;
        ++at;
    }
}

bool isPartOfRun(char32_t c) {
    return QChar::isLetterOrNumber(c) && !standsAlone(c);
}

// A word begins at `at`: where it ends.
qsizetype endOfWord(const QList<uint>& text, qsizetype at) {
    if (!isPartOfRun(text[at]))
        return at + 1;
    if (isDigit(text[at]))
        return endOfNumber(text, at);
    while (at < text.size() && isPartOfRun(text[at]) && !isDigit(text[at]))
        ++at;
    return at;
}

}  // namespace

QStringList PlainWords::of(const QString& given) const {
    QList<uint> text;
    for (const uint c : given.toUcs4())
        text.append(folding->of(c));
    QStringList words;
    for (qsizetype at = 0; at < text.size();) {
        if (text[at] != '\n' && (QChar::isSpace(text[at]) || text[at] < ' ')) {
            ++at;
            continue;
        }
        const qsizetype end = endOfWord(text, at);
        QString word;
        for (const uint c : text.sliced(at, end - at))
            word += textOf(c);
        words.append(word);
        at = end;
    }
    return words;
}

}  // namespace wirepane
