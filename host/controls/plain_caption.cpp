// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/plain_caption.h"

namespace wirepane {

QString captionOfName(QString name) {
    return name.replace(u'&', QStringLiteral("&&"));
}

QString nameOfCaption(QString caption) {
    for (qsizetype mark = caption.indexOf(u'&'); mark >= 0; mark = caption.indexOf(u'&', mark + 1))
        caption.remove(mark, 1);
    return caption;
}

QString captionWithoutKey(QString caption) {
    qsizetype mark = caption.indexOf(u'&');
    while (mark >= 0 && caption.mid(mark + 1, 1) == u'&')
        mark = caption.indexOf(u'&', mark + 2);
    if (mark < 0)
        return caption;
    const bool added = mark > 0 && caption.at(mark - 1) == u'(' && caption.mid(mark + 2, 1) == u')';
    return added ? caption.remove(mark - 1, 4) : caption.remove(mark, 1);
}

}  // namespace wirepane
