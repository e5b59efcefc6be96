// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace wirepane {

// What a tag does to the text around it.
enum class TagEffect {
    None,       // inline: nothing
    Paragraph,  // a block: starts and ends a paragraph
    Gap,        // a cell: a blank between its text and the next
    Hidden,     // its content is not text
};

struct MarkupTag {
    QStringView name;   // as written; empty for comments and declarations
    qsizetype end = 0;  // index behind the tag
    bool closing = false;
    bool isEmpty = false;  // written as one that has no content ("<br/>")
    TagEffect effect = TagEffect::None;
};

// Which tags count as such.
enum class Tags { All, KnownOnly };

// Finds tags in one markup text. Asked for "<" after "<", each behind the tag before, it takes time linear in
// the text however broken that is.
class MarkupTags {
public:
    MarkupTags(QStringView markup, Tags whichTags) : text(markup), which(whichTags) {}

    // The tag, comment or declaration that starts with the "<" at `start`; its end is 0 when none starts
    // there.
    MarkupTag tagAt(qsizetype start);

private:
    qsizetype endOfTag(qsizetype start);

    QStringView text;
    Tags which;
    bool noMoreEnds = false;  // no ">" in the rest
    int unclosedQuotes = 0;   // how often an attribute's quote ran to the end of the text
};

}  // namespace wirepane
