// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {

class XmlSource;

// Whether a text element of a feed says what form it has.
enum class FeedTextKind {
    Stated,   // Atom: the attributes "type" and "mode" say it, and text is the default
    Unknown,  // RSS: text or escaped markup
};

// The plain text of the element that `xml` stands on, and goes to its end.
QString feedText(XmlSource& xml, FeedTextKind kind);

}  // namespace wirepane
