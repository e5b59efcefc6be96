// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/long_runs.h"

#include <QTextBoundaryFinder>

namespace wirepane {

namespace {

constexpr int mostParts = 32;  // of one character: marks beyond that are taken apart

// The last place to break a line inside [from, to); `from` when there is none.
int lastOpportunity(const QString& text, int from, int to) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text.constData() + from, to - from);
    finder.toEnd();
    const auto last = finder.toPreviousBoundary();
    return last > 0 ? from + static_cast<int>(last) : from;
}

// The beginning of the character that holds `at`.
int beginOfCharacter(const QString& text, int at) {
    int begin = at;
    for (int parts = 0; parts < mostParts && text[begin].isMark(); ++parts)
        --begin;
    if (text[begin].isMark())
        begin = at;
    return text[begin].isLowSurrogate() && text[begin - 1].isHighSurrogate() ? begin - 1 : begin;
}

}  // namespace

std::vector<int> longRunBreaks(const QString& text) {
    std::vector<int> breaks;
    int begin = 0;
    for (int at = 0; at < text.size(); ++at) {
        if (text[at].isSpace() && text[at] != QChar::Nbsp) {
            begin = at + 1;
        } else if (at - begin >= longestRun) {
            const int opportunity = lastOpportunity(text, begin, at);
            if (opportunity == begin)
                breaks.push_back(beginOfCharacter(text, at));
            begin = opportunity == begin ? breaks.back() : opportunity;
        }
    }
    return breaks;
}

QString broken(const QString& text, const std::vector<int>& breaks) {
    QString broken;
    broken.reserve(text.size() + static_cast<qsizetype>(breaks.size()));
    int from = 0;
    for (const int at : breaks) {
        broken += QStringView(text).sliced(from, at - from);
        broken += u'\n';
        from = at;
    }
    return broken += QStringView(text).sliced(from);
}

QString whole(const QString& piece, int from, const std::vector<int>& breaks) {
    QString whole;
    whole.reserve(piece.size());
    qsizetype done = 0;
    for (std::size_t i = 0; i < breaks.size(); ++i) {
        const qsizetype place = breaks[i] + static_cast<qsizetype>(i) - from;
        if (place < 0 || place >= piece.size())
            continue;
        whole += QStringView(piece).sliced(done, place - done);
        done = place + 1;
    }
    return whole += QStringView(piece).sliced(done);
}

}  // namespace wirepane
