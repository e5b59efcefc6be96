// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/plain_text.h"

#include "backend/clean_text.h"
#include "backend/import/html_entities.h"
#include "backend/import/markup_tag.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestEntity = 32;

// Numbers 128 to 159 are control characters, but old pages mean those of Windows code page 1252 by them.
constexpr std::array<char16_t, 32> windowsCharacters{
    0x20ac, 0xfffd, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xfffd, 0x017d, 0xfffd, 0xfffd, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0xfffd, 0x017e, 0x0178};

char32_t numberedCharacter(QStringView number) {
    const bool hexadecimal = number.startsWith(u'x') || number.startsWith(u'X');
    const QStringView digits = number.sliced(hexadecimal ? 1 : 0);
    // toUInt takes signs and white space as well, and anything behind a NUL.
    const bool isPlain = std::all_of(digits.begin(), digits.end(), [&](QChar character) {
        return character.unicode() < 128 && std::isalnum(character.unicode()) != 0;
    });
    bool isNumber = false;
    const uint code = digits.toUInt(&isNumber, hexadecimal ? 16 : 10);
    if (!isPlain || !isNumber)
        return 0;
    if (code >= 128 && code < 160)
        return windowsCharacters.at(code - 128);
    return code == 0 || code > QChar::LastValidCodePoint || QChar::isSurrogate(code) ? U'\ufffd' : code;
}

struct Reference {
    char32_t character = 0;  // 0: none
    qsizetype end = 0;
};

// The character reference that starts with the "&" at `start`.
Reference referenceAt(QStringView text, qsizetype start) {
    const QStringView rest = text.sliced(start + 1).left(longestEntity);
    const qsizetype length = rest.indexOf(u';');
    if (length < 1)
        return {};
    const QStringView name = rest.first(length);
    const char32_t character = name.front() == u'#' ? numberedCharacter(name.sliced(1)) : htmlEntity(name);
    return {character, start + 1 + length + 1};
}

class MarkupText {
public:
    MarkupText(QStringView markup, Tags whichTags) : text(markup), tags(markup, whichTags) {
        plain.reserve(markup.size());
    }

    QString take() {
        while (at < text.size()) {
            const QChar c = text.at(at);
            if ((c == u'<' && skipTag()) || (c == u'&' && takeReference()))
                continue;
            const qsizetype end = qMax(endOfRun(at, text.size()), at + 1);
            add(text.sliced(at, end - at));
            at = end;
        }
        return std::move(plain);
    }

private:
    // Where the run of characters ends of which none is blank or could start markup; a lone blank between two
    // of them belongs to it, since it stays as it is.
    qsizetype endOfRun(qsizetype from, qsizetype limit) const {
        const auto isText = [this](qsizetype i) {
            const QChar c = text.at(i);
            return isPlainLetter(c) || (c != u'<' && c != u'&' && !isBlank(c));
        };
        while (from < limit &&
               (isText(from) || (text.at(from) == u' ' && from > at && from + 1 < limit && isText(from + 1))))
            ++from;
        return from;
    }

    bool skipTag() {
        if (text.sliced(at).startsWith("<![CDATA["_L1)) {
            takeLiterally(9);
            return true;
        }
        const MarkupTag tag = tags.tagAt(at);
        if (tag.end == 0)
            return false;
        at = tag.end;
        if (tag.name.compare("pre"_L1, Qt::CaseInsensitive) == 0)
            preformatted = !tag.closing;
        gap = gap || tag.effect == TagEffect::Gap;
        if (tag.effect == TagEffect::Paragraph)
            endParagraph();
        if (tag.effect == TagEffect::Hidden && !tag.closing && !tag.isEmpty)
            skipContent(tag.name);
        return true;
    }

    // The content of a section in which nothing is markup; `opening` is the length of what opens it.
    void takeLiterally(qsizetype opening) {
        const qsizetype end = text.indexOf("]]>"_L1, at);
        const QStringView content = text.first(end < 0 ? text.size() : end).sliced(at + opening);
        for (qsizetype i = 0; i < content.size(); ++i)
            add(content.sliced(i, 1));
        at = end < 0 ? text.size() : end + 3;
    }

    void skipContent(QStringView name) {
        const qsizetype end = text.indexOf(QString(u"</" % name), at, Qt::CaseInsensitive);
        at = end < 0 ? text.size() : end;
    }

    bool takeReference() {
        const Reference reference = referenceAt(text, at);
        if (reference.character == 0)
            return false;
        add(QChar::fromUcs4(reference.character));
        at = reference.end;
        return true;
    }

    // A blank, or characters that start with none.
    void add(QStringView characters) {
        const QChar c = characters.front();
        if (preformatted && c == u'\n') {
            endParagraph();
            return;
        }
        if (isBlank(c)) {
            gap = true;
            if (preformatted)
                blanks += c == QChar::Nbsp ? QChar(u' ') : c;
            return;
        }
        if (!plain.isEmpty() && paragraphEnd)
            plain += "\n\n"_L1;
        else if (!plain.isEmpty() && gap && blanks.isEmpty())
            plain += u' ';
        plain += blanks;
        blanks.clear();
        gap = paragraphEnd = false;
        plain += characters;
    }

    void endParagraph() {
        paragraphEnd = true;
        blanks.clear();
    }

    QStringView text;
    MarkupTags tags;
    QString plain;
    qsizetype at = 0;
    QString blanks;             // of <pre>, since the last character of the line
    bool gap = false;           // white space since the last character
    bool paragraphEnd = false;  // a block began or ended since the last character
    bool preformatted = false;
};

bool holdsKnownTag(QStringView text) {
    MarkupTags tags(text, Tags::KnownOnly);
    qsizetype at = text.indexOf(u'<');
    while (at >= 0) {
        const MarkupTag tag = tags.tagAt(at);
        if (tag.end != 0 && !tag.name.isEmpty())
            return true;
        at = text.indexOf(u'<', qMax(at + 1, tag.end));
    }
    return false;
}

QString withReferencesDecoded(QStringView text) {
    QString decoded;
    qsizetype at = 0;
    for (qsizetype mark = text.indexOf(u'&'); mark >= 0; mark = text.indexOf(u'&', mark + 1)) {
        const Reference reference = referenceAt(text, mark);
        if (reference.character == 0)
            continue;
        decoded += text.sliced(at, mark - at);
        decoded += QChar::fromUcs4(reference.character);
        at = reference.end;
    }
    return decoded.append(text.sliced(at));
}

}  // namespace

QString plainText(QStringView markup) {
    return MarkupText(markup, Tags::All).take();
}

QString textOfUnknownForm(QStringView text) {
    return holdsKnownTag(text) ? MarkupText(text, Tags::KnownOnly).take() : withReferencesDecoded(text);
}

}  // namespace wirepane
