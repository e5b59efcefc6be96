// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/plain_caption.h"

QString CaptionOfName(QString name) {
    return name.replace(u'&', QStringLiteral("&&"));
}

QString NameOfCaption(QString caption) {
    for (qsizetype mark = caption.indexOf(u'&'); mark >= 0; mark = caption.indexOf(u'&', mark + 1))
        caption.remove(mark, 1);
    return caption;
}
