// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/search/plain_words.h"

#include <QHash>
#include <QRegularExpression>

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

// Which ideographs are one: each leads to another of its set, and one of them to itself.
class PlainWords::Folding {
public:
    Folding() {
        for (const char* name : {"t2s.json", "t2hk.json", "t2tw.json"}) {
            for (const auto& step :
                 opencc::Config().NewFromFile(name)->GetConversionChain()->GetConversions())
                read(*step->GetDict()->GetLexicon());
        }
    }
    char32_t oneFor(char32_t c) const {
        for (auto next = leads.constFind(c); next != leads.constEnd(); next = leads.constFind(c))
            c = *next;
        return c;
    }

private:
    void read(const opencc::Lexicon& table) {
        for (std::size_t row = 0; row < table.Length(); ++row) {
            const auto from = QString::fromStdString(table.At(row)->Key()).toUcs4();
            for (const std::string& value : table.At(row)->Values()) {
                const auto to = QString::fromStdString(value).toUcs4();
                for (qsizetype i = 0; to.size() == from.size() && i < to.size(); ++i)
                    unite(from[i], to[i]);
            }
        }
    }
    void unite(char32_t a, char32_t b) {
        a = oneFor(a);
        b = oneFor(b);
        if (a != b)
            leads.insert(a, b);
    }

    QHash<char32_t, char32_t> leads;
};

PlainWords::PlainWords() : folding(std::make_unique<Folding>()) {}
PlainWords::~PlainWords() = default;

QStringList PlainWords::of(const QString& given) const {
    static const QRegularExpression accents(u"[\\x{300}-\\x{36F}]"_s);
    static const QRegularExpression dashes(u"[\\p{Pd}\\x{2212}]"_s);
    static const QRegularExpression word(
        u"\\n"
        "|[0-9]{1,3}(?:,[0-9]{3}(?![0-9]))+(?:\\.[0-9]+)*"
        "|[0-9]+(?:\\.[0-9]+)*"
        "|(?:(?![0-9\\p{Han}\\p{Hiragana}\\p{Katakana}\\p{Hangul}\\p{Bopomofo}\\p{Yi}\\p{Thai}\\p{Lao}"
        "\\p{Khmer}\\p{Myanmar}\\p{Tibetan}])[\\p{L}\\p{N}])+"
        "|[^\\p{Z}\\p{Cc}]"_s);

    QString text;
    for (const QChar c : given) {
        const bool isRadical = c >= u'\u2E80' && c <= u'\u2FDF';
        const bool isWidth = c >= u'\uFF00' && c <= u'\uFFEF';
        text += isRadical || isWidth ? QString(c).normalized(QString::NormalizationForm_KC) : QString(c);
    }
    text = text.normalized(QString::NormalizationForm_D)
               .remove(accents)
               .normalized(QString::NormalizationForm_C)
               .toCaseFolded();
    text.replace(dashes, u"-"_s);
    for (QChar& c : text) {
        if (c >= u'\u2018' && c <= u'\u201F')
            c = c < u'\u201C' ? u'\'' : u'"';
    }
    auto characters = text.toUcs4();
    for (uint& c : characters)
        c = folding->oneFor(c);
    text = QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), characters.size());

    QStringList words;
    for (auto found = word.globalMatch(text); found.hasNext();)
        words += found.next().captured();
    return words;
}

}  // namespace wirepane
