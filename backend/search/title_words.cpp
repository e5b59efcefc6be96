// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/title_words.h"

#include "backend/words/search_words.h"

#include <QChar>

#include <algorithm>

namespace wirepane {

namespace {

constexpr qsizetype shortestWord = 3;
constexpr int timesAsOften = 2;

enum class Kind { Word, Character, Other };

// A single character of a script without blanks says too little, and a sign or a number nothing.
Kind kindOf(const QByteArray& word) {
    if (const char byte = word.front(); byte > 0)
        return byte >= 'a' && byte <= 'z' && word.size() >= shortestWord ? Kind::Word : Kind::Other;
    const QString text = QString::fromUtf8(word);
    const char32_t first = text.toUcs4().constFirst();
    const QChar::Script script = QChar::script(first);
    if (script == QChar::Script_Han || script == QChar::Script_Hiragana || script == QChar::Script_Katakana)
        return Kind::Character;
    return QChar::isLetter(first) && text.size() >= shortestWord ? Kind::Word : Kind::Other;
}

}  // namespace

void TitleWords::add(const QString& title, bool isHit) {
    if (!isHit && skipped++ % sampledOf != 0)
        return;
    ++titles;
    ++(isHit ? hitTitles : sampled);
    const QByteArray utf8 = title.toUtf8();
    WordReader reader(utf8);
    QByteArray before;  // the character that the next one makes a pair with
    QByteArrayView textBefore;
    while (reader.next()) {
        const QByteArray word(reader.word().data(), qsizetype(reader.word().size()));
        const QByteArrayView text =
            QByteArrayView(utf8).sliced(reader.start(), reader.end() - reader.start());
        const Kind kind = kindOf(word);
        if (kind == Kind::Word)
            count(' ' + word + ' ', text, {}, isHit);
        if (kind == Kind::Character && !before.isEmpty())
            count(' ' + before + ' ' + word + ' ', textBefore, text, isHit);
        before = kind == Kind::Character ? word : QByteArray();
        textBefore = text;
    }
}

void TitleWords::count(const QByteArray& phrase, QByteArrayView first, QByteArrayView second, bool isHit) {
    Count& counted = counts[phrase];
    if (counted.lastTitle == titles)
        return;
    counted.lastTitle = titles;
    ++(isHit ? counted.hits : counted.others);
    if (counted.text.isEmpty())
        counted.text = QString::fromUtf8(first) + QString::fromUtf8(second);
}

bool TitleWords::isNamed(const QByteArray& phrase) const {
    return std::any_of(named.begin(), named.end(),
                       [&](const QByteArray& whole) { return whole.contains(phrase); });
}

std::vector<Rehearsal::Word> TitleWords::mostOfHits() const {
    std::vector<Rehearsal::Word> words;
    for (auto each = counts.cbegin(); each != counts.cend(); ++each) {
        const double inHits = double(each->hits) * std::max(1, sampled);
        const double elsewhere = double(each->others) * std::max(1, hitTitles);
        if (each->hits > 1 && inHits >= timesAsOften * elsewhere && !isNamed(each.key()))
            words.push_back({each->text, each->hits});
    }
    const auto shown = words.begin() + std::ptrdiff_t(std::min(words.size(), Rehearsal::mostWords));
    std::partial_sort(words.begin(), shown, words.end(),
                      [](const Rehearsal::Word& a, const Rehearsal::Word& b) {
                          return a.hits != b.hits ? a.hits > b.hits : a.text < b.text;
                      });
    words.erase(shown, words.end());
    return words;
}

}  // namespace wirepane
