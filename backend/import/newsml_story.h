// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace wirepane {
class XmlSource;

// What the content of a news item says, as plain text.
struct NewsmlStory {
    QString text;
    QString headline;  // that of the story's own markup

    // Takes in the element that `xml` stands on, a child of <contentSet>, and goes to its end. Of several
    // renditions the first with text counts; pictures, sounds and data are not text.
    void takeRendition(XmlSource& xml);

private:
    void takeMarkup(XmlSource& xml);
    void takeArticle(XmlSource& xml);
    void takeData(XmlSource& xml);
};

}  // namespace wirepane
