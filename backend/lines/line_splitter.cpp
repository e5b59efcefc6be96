// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/line_splitter.h"

namespace wirepane {

void LineSplitter::feed(const QByteArray& bytes, const std::function<void(const QByteArray&)>& line,
                        const std::function<void()>& tooLong) {
    qsizetype start = 0;
    while (start < bytes.size()) {
        const qsizetype feed = bytes.indexOf('\n', start);
        const qsizetype end = feed < 0 ? bytes.size() : feed;
        if (!skipping && unfinished.size() + (end - start) > longestLine) {
            skipping = true;
            unfinished.clear();
            tooLong();
        }
        if (!skipping)
            unfinished.append(bytes.constData() + start, end - start);
        if (feed >= 0)
            endLine(line);
        start = end + 1;
    }
}

void LineSplitter::finish(const std::function<void(const QByteArray&)>& line) {
    endLine(line);
}

void LineSplitter::endLine(const std::function<void(const QByteArray&)>& line) {
    const bool whole = !skipping;
    skipping = false;
    QByteArray content;
    content.swap(unfinished);
    if (content.endsWith('\r'))
        content.chop(1);
    if (whole && !content.trimmed().isEmpty())
        line(content);
}

}  // namespace wirepane
