// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/plain_caption.h"

QString CaptionOfName(QString name) {
    return name.replace(u'&', QStringLiteral("&&"));
}

QString NameOfCaption(QString caption) {
    return caption.replace(QStringLiteral("&&"), QStringLiteral("&"));
}
