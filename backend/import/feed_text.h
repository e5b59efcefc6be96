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

// The plain text of the element that `xml` stands on, and goes to its end.
QString feedText(XmlSource& xml, FeedTextKind kind);

}  // namespace wirepane
