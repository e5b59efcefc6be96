// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/search/plain_words.h"

#include <QHash>
#include <QList>

#include <cstdint>
#include <opencc.h>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

// One dictionary of the library, asked for a single character.
class Dictionary {
public:
    explicit Dictionary(const char* name) : opened(opencc_open(name)) {}
    ~Dictionary() {
        if (isThere())
            opencc_close(opened);
    }
    Dictionary(const Dictionary&) = delete;
    Dictionary& operator=(const Dictionary&) = delete;

    QString of(const QString& character) const {
        const QByteArray bytes = character.toUtf8();
        char* const converted =
            isThere() ? opencc_convert_utf8(opened, bytes.constData(), static_cast<std::size_t>(bytes.size()))
                      : nullptr;
        if (converted == nullptr)
            return character;
        const QString result = QString::fromUtf8(converted);
        opencc_convert_utf8_free(converted);
        return result.toUcs4().size() == 1 ? result : character;
    }

private:
    bool isThere() const { return reinterpret_cast<std::intptr_t>(opened) != -1; }
    opencc_t opened;
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
            return simplified(text).toUcs4();
        QList<uint> letters;
        for (const uint part : text.normalized(QString::NormalizationForm_D).toUcs4()) {
            if (part < 0x300 || part >= 0x370)
                letters.append(QChar::toCaseFolded(part));
        }
        // What falls into more than one character is none with an accent.
        return letters.size() == 1 ? letters : text.toUcs4();
    }
    QString simplified(QString text) const {
        text = text.normalized(QString::NormalizationForm_KC);
        for (const Dictionary* dictionary : {&taiwan, &hongKong, &japan, &mainland})
            text = dictionary->of(text);
        return text;
    }

    Dictionary taiwan{"tw2t.json"};
    Dictionary hongKong{"hk2t.json"};
    Dictionary japan{"jp2t.json"};
    Dictionary mainland{"t2s.json"};
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
    while (at < text.size() && isPartOfRun(text[at]))
        at = isDigit(text[at]) ? endOfNumber(text, at) : at + 1;
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
