// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/import/read_all.h"

#include "backend/import/source_reader.h"

#include <QBuffer>
#include <QStringList>

namespace wirepane {

QString ReadOut::complaints() const {
    QStringList all;
    for (const Rejected& rejection : rejections)
        all += rejection.place + QLatin1StringView(": ") + rejection.reason;
    return all.join(u'\n');
}

ReadOut readAll(QByteArray source, const ReadOptions& options) {
    ReadOut out;
    QBuffer buffer(&source);
    buffer.open(QIODevice::ReadOnly);
    const Done done = readSource(buffer, options, [&out](SourceItem&& item) {
        if (item.content)
            out.items.push_back(item.content.value());
        else
            out.rejections.push_back({sentence(item.place), sentence(item.content.error())});
        return true;
    });
    if (!done)
        out.refusal = sentence(done.error());
    return out;
}

}  // namespace wirepane
