// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/text_encoding.h"

#include <algorithm>
#include <array>

namespace wirepane {

namespace {

struct Label {
    const char* name;
    const char* meant;  // the encoding of which the named one is a part
};

constexpr std::array labels{
    Label{"ansi_x3.4-1968", "windows-1252"},
    Label{"ascii", "windows-1252"},
    Label{"cp819", "windows-1252"},
    Label{"ibm819", "windows-1252"},
    Label{"iso-8859-1", "windows-1252"},
    Label{"iso-ir-100", "windows-1252"},
    Label{"iso8859-1", "windows-1252"},
    Label{"iso88591", "windows-1252"},
    Label{"iso_8859-1", "windows-1252"},
    Label{"iso_8859-1:1987", "windows-1252"},
    Label{"l1", "windows-1252"},
    Label{"latin1", "windows-1252"},
    Label{"us-ascii", "windows-1252"},
    Label{"iso-8859-9", "windows-1254"},
    Label{"iso8859-9", "windows-1254"},
    Label{"latin5", "windows-1254"},
    Label{"iso-8859-11", "windows-874"},
    Label{"tis-620", "windows-874"},
    Label{"gb2312", "gb18030"},
    Label{"gbk", "gb18030"},
    Label{"x-gbk", "gb18030"},
    Label{"euc-kr", "windows-949"},
    Label{"ks_c_5601-1987", "windows-949"},
    Label{"shift_jis", "windows-31j"},
    Label{"sjis", "windows-31j"},
};

}  // namespace

QStringDecoder decoderOf(const QByteArray& encoding) {
    const QByteArray name = encoding.trimmed().toLower();
    const auto* label =
        std::find_if(labels.begin(), labels.end(), [&](const Label& one) { return name == one.name; });
    if (label != labels.end()) {
        if (QStringDecoder meant(label->meant); meant.isValid())
            return meant;
    }
    return QStringDecoder(encoding.constData());
}

bool isUtf16(const QByteArray& bytes) {
    return bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff");
}

QByteArrayView withoutByteOrderMark(QByteArrayView text) {
    constexpr QByteArrayView mark("\xef\xbb\xbf");
    return text.startsWith(mark) ? text.sliced(mark.size()) : text;
}

}  // namespace wirepane
