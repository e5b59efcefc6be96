// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/pdf_characters.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <vector>

namespace wirepane {

namespace {

constexpr int digits = 4;  // of a character in the file: "<4E00>"

// The faces in which the characters are drawn, each once; not the boxes that stand for what no face has.
QList<QRawFont> facesOf(const QString& characters, const QFont& font) {
    QTextLayout layout(characters, font);
    layout.beginLayout();
    // Some characters end a line, however wide it is.
    while (layout.createLine().isValid())
        continue;
    layout.endLayout();
    QList<QRawFont> faces;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QRawFont face = run.rawFont();
        if (!face.fontTable("cmap").isEmpty() && !faces.contains(face))
            faces.append(face);
    }
    return faces;
}

// Not one that stands for another, as a radical does for the ideograph that it looks like.
bool standsForItself(QChar character) {
    return character.decompositionTag() == QChar::NoDecomposition;
}

class DrawnCharacters {
public:
    DrawnCharacters(const QString& drawn, const QFont& font) {
        std::copy_if(drawn.begin(), drawn.end(), std::inserter(known, known.end()),
                     [](QChar character) { return character >= u' '; });
        QString characters;
        std::copy(known.begin(), known.end(), std::back_inserter(characters));
        // The first character of a glyph names it.
        std::stable_partition(characters.begin(), characters.end(), standsForItself);
        for (const QRawFont& face : facesOf(characters, font)) {
            auto& characterOf = glyphs.emplace_back(face, std::map<quint32, QChar>()).second;
            for (const QChar character : characters) {
                if (const quint32 glyph = glyphOf(face, character); glyph != 0)
                    characterOf.emplace(glyph, character);
            }
        }
    }

    // The character that was drawn where the file names this one.
    QChar behind(QChar named) const {
        if (known.contains(named) && standsForItself(named))
            return named;
        for (const auto& [face, characters] : glyphs) {
            const auto found = characters.find(glyphOf(face, named));
            if (found != characters.end())
                return found->second;
        }
        return named;
    }

private:
    static quint32 glyphOf(const QRawFont& face, QChar character) {
        return face.glyphIndexesForString(character).value(0);
    }

    std::set<QChar> known;
    std::vector<std::pair<QRawFont, std::map<quint32, QChar>>> glyphs;  // by the faces' glyph numbers
};

// One list of named characters: "[<0031> <4E00> ]".
void correctList(QByteArray& pdf, qsizetype from, qsizetype to, const DrawnCharacters& drawn) {
    for (qsizetype at = pdf.indexOf('<', from); at >= 0 && at < to; at = pdf.indexOf('<', at + 1)) {
        bool isNumber = false;
        const auto named = pdf.mid(at + 1, digits).toUShort(&isNumber, 16);
        if (!isNumber || pdf[at + 1 + digits] != '>')
            continue;
        const QByteArray right = QByteArray::number(drawn.behind(QChar(named)).unicode(), 16).toUpper();
        pdf.replace(at + 1, digits, right.rightJustified(digits, '0'));
    }
}

}  // namespace

void nameDrawnCharacters(QByteArray& pdf, const QString& drawn, const QFont& font) {
    const DrawnCharacters characters(drawn, font);
    // Nothing moves: the file's own table of places stays right.
    for (qsizetype map = pdf.indexOf("begincmap"); map >= 0; map = pdf.indexOf("begincmap", map + 1)) {
        const qsizetype end = pdf.indexOf("endcmap", map);
        for (qsizetype list = pdf.indexOf('[', map); list >= 0 && list < end;
             list = pdf.indexOf('[', list + 1)) {
            const qsizetype close = pdf.indexOf(']', list);
            if (close >= 0 && close < end)
                correctList(pdf, list, close, characters);
        }
    }
}

}  // namespace wirepane
