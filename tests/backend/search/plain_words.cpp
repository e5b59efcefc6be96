// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/search/plain_words.h"

#include <QChar>
#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <memory>
#include <opencc/Config.hpp>
#include <opencc/Conversion.hpp>
#include <opencc/ConversionChain.hpp>
#include <opencc/Converter.hpp>
#include <opencc/Dict.hpp>
#include <opencc/DictEntry.hpp>
#include <opencc/Lexicon.hpp>
#include <string>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

// Which ideographs are one, as a forest: the root of a tree stands for all of it.
class Ideographs {
public:
    Ideographs() {
        for (const char* table : {"t2s.json", "t2hk.json", "t2tw.json"}) {
            opencc::Config config;
            const auto chain = config.NewFromFile(table)->GetConversionChain();
            for (const auto& conversion : chain->GetConversions()) {
                const auto lexicon = conversion->GetDict()->GetLexicon();
                for (const auto& entry : *lexicon)
                    unite(*entry);
            }
        }
    }

    char32_t representing(char32_t one) const {
        while (parents.contains(one))
            one = parents.value(one);
        return one;
    }

private:
    void unite(const opencc::DictEntry& entry) {
        const auto from = QString::fromStdString(entry.Key()).toUcs4();
        for (const std::string& value : entry.Values()) {
            const auto to = QString::fromStdString(value).toUcs4();
            for (qsizetype i = 0; from.size() == to.size() && i < from.size(); ++i) {
                const char32_t first = representing(from.at(i));
                const char32_t second = representing(to.at(i));
                if (first != second)
                    parents.insert(std::max(first, second), std::min(first, second));
            }
        }
    }

    QHash<char32_t, char32_t> parents;
};

// Of the blocks of diacritical marks.
bool isAccent(char32_t c) {
    return (c >= 0x0300 && c <= 0x036F) || (c >= 0x1AB0 && c <= 0x1AFF) || (c >= 0x1DC0 && c <= 0x1DFF) ||
           (c >= 0x20D0 && c <= 0x20FF) || (c >= 0xFE20 && c <= 0xFE2F);
}

bool cannotBeSeen(char32_t c) {
    return QChar::category(c) == QChar::Other_Format || (c >= 0xFE00 && c <= 0xFE0F) ||
           (c >= 0xE0100 && c <= 0xE01EF);
}

bool isOfScriptWithoutBlanks(char32_t c) {
    switch (QChar::script(c)) {
        case QChar::Script_Han:
        case QChar::Script_Bopomofo:
        case QChar::Script_Hiragana:
        case QChar::Script_Katakana:
        case QChar::Script_Hangul:
        case QChar::Script_Thai:
        case QChar::Script_Lao:
        case QChar::Script_Khmer:
            return true;
        default:
            // Burmese without what other languages have added to its script, and what belongs to several
            // scripts, as the long sound of Japanese does.
            return (c >= 0x1000 && c < 0x10A0) || (c >= 0x3000 && c < 0x3200);
    }
}

bool isCircledHangul(char32_t c) {
    return c >= 0x3260 && c < 0x327F;
}

// The last of what one character after another is a form of.
char32_t formOf(char32_t c) {
    const auto parts = QChar::decomposition(c).toUcs4();
    return parts.size() == 1 && parts.front() < 0x10000 ? formOf(parts.front()) : c;
}

bool isLineEnd(char32_t c) {
    return c == '\n' || c == '\r' || c == 0x85 || c == 0x2028 || c == 0x2029;
}

bool isBlank(char32_t c) {
    return QChar::isSpace(c) || QChar::category(c) == QChar::Other_Control;
}

bool isDigit(char32_t c) {
    return c >= '0' && c <= '9';
}

// Digits of other scripts and Roman numerals are letters.
bool isLetter(char32_t c) {
    if (isDigit(c))
        return false;
    const auto category = QChar::category(c);
    return QChar::isLetter(c) || category == QChar::Number_DecimalDigit || category == QChar::Number_Letter;
}

char32_t plainSign(char32_t c) {
    if (c >= 0x2018 && c <= 0x201B)
        return U'\'';
    if (c >= 0x201C && c <= 0x201F)
        return U'"';
    return (c >= 0x2010 && c <= 0x2015) || c == 0x2212 ? U'-' : c;
}

}  // namespace

class PlainWords::Folding {
public:
    QString of(char32_t c) {
        auto known = folded.find(c);
        if (known == folded.end())
            known = folded.insert(c, make(c));
        return *known;
    }

private:
    QString make(char32_t c) const {
        if (cannotBeSeen(c))
            return {};
        const QString given = QString::fromUcs4(&c, 1);
        // Raised and circled digits are no numbers beside which others may stand.
        if (QChar::category(c) == QChar::Number_Other)
            return given;
        if (c >= 0x10000) {
            const char32_t one = ideographs.representing(c);
            return QString::fromUcs4(&one, 1);
        }
        // What stands for several characters stays itself, as a circled syllable of Korean does.
        const char32_t form = formOf(c);
        QString base;
        for (const char32_t part :
             QString::fromUcs4(&form, 1).normalized(QString::NormalizationForm_KD).toUcs4())
            base += isAccent(part) ? QString() : QString::fromUcs4(&part, 1);
        const auto one = base.normalized(QString::NormalizationForm_C).toUcs4();
        if (one.isEmpty())
            return {};
        const bool isOne = one.size() == 1 && !isCircledHangul(c);
        const char32_t plain =
            ideographs.representing(QChar::toCaseFolded(plainSign(isOne ? char32_t(one.front()) : form)));
        return QString::fromUcs4(&plain, 1);
    }

    const Ideographs ideographs;
    QHash<char32_t, QString> folded;
};

PlainWords::PlainWords() : folding(std::make_unique<Folding>()) {}
PlainWords::~PlainWords() = default;

QStringList PlainWords::of(const QString& text) const {
    // A sign of another width than the digits beside it is no part of their number.
    static const QRegularExpression sentenceSign(
        u"((?<![０-９])[，．]|[，．](?![０-９])|(?<=[０-９])[,.․︐﹐﹒]|[,.․︐﹐﹒](?=[０-９]))"_s);
    QString parted = text;
    parted.replace(sentenceSign, u" \\1 "_s);
    QString plain;
    for (const char32_t c : parted.toUcs4()) {
        if (isLineEnd(c))
            plain += u'\n';
        else
            plain += isBlank(c) ? u" "_s : folding->of(c);
    }
    static const QRegularExpression number(u"[0-9]+(?:\\.[0-9]+|(?<![0-9]{4}),[0-9]{3}(?![0-9]))*"_s);
    QStringList words;
    bool isLetters = false;  // the last word goes on
    for (qsizetype at = 0; at < plain.size();) {
        const bool isPair = plain.at(at).isHighSurrogate() && at + 1 < plain.size();
        const QString one = plain.mid(at, isPair ? 2 : 1);
        const char32_t c = one.toUcs4().value(0);
        const bool wasLetters = isLetters;
        isLetters = !isOfScriptWithoutBlanks(c) && (isLetter(c) || (wasLetters && QChar::isMark(c)));
        if (isDigit(c)) {
            words += number
                         .match(plain, at, QRegularExpression::NormalMatch,
                                QRegularExpression::AnchorAtOffsetMatchOption)
                         .captured();
            at += words.last().size();
            continue;
        }
        at += one.size();
        if (isLetters && wasLetters)
            words.last() += one;
        else if (one != u" ")
            words += one;
    }
    return words;
}

}  // namespace wirepane
