// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {
class XmlSource;

// What a feed says of the form of a text element.
enum class FeedTextKind {
    Stated,   // Atom: the attributes "type" and "mode" say it, and text is the default
    Markup,   // escaped markup
    Unknown,  // RSS: text or escaped markup
};

// A text as it stands in a feed, and what it takes to make plain text of it.
struct FeedText {
    enum class Form { Plain, Indented, Unknown, Markup, EncodedMarkup };

    QString raw;
    Form form = Form::Plain;
};

// The text of the element that `xml` stands on, and goes to its end.
FeedText feedText(XmlSource& xml, FeedTextKind kind);

// Pure, on any thread.
QString plainTextOf(const FeedText& text);

}  // namespace wirepane
