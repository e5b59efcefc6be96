// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/list_notices.h"

#include "host/controls/uncut_width.h"
#include "host/views/news_control_ids.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString separator = u" · "_s;
constexpr int fewLetters = 6;

}  // namespace

int commandOf(NoticeKind kind) {
    switch (kind) {
        case NoticeKind::Narrowed:
            return ids::endNarrowing;
        case NoticeKind::Filtered:
            return ids::readUnfiltered;
        case NoticeKind::BeforeOutage:
            return ids::searchAgain;
        default:
            return 0;
    }
}

void ListNotices::tell(NoticeKind kind, const QString& text) {
    if (text.isEmpty())
        texts.erase(kind);
    else
        texts[kind] = text;
}

QString ListNotices::text() const {
    QStringList all;
    for (const auto& [kind, text] : texts)
        all.append(text);
    return all.join(separator);
}

QString ListNotices::text(NoticeKind kind) const {
    const auto found = texts.find(kind);
    return found != texts.end() ? found->second : QString();
}

std::vector<PlacedNotice> placeNotices(const ListNotices& notices, int room, const QFontMetrics& metrics) {
    std::vector<PlacedNotice> placed;
    int left = 0;
    for (const auto& [kind, text] : notices.inOrder()) {
        const int wanted = uncutWidth(metrics, text);
        const int width = std::min(wanted, room - left);
        if (width < wanted && width < fewLetters * metrics.averageCharWidth())
            break;
        placed.push_back(
            {kind, left, width, width < wanted ? metrics.elidedText(text, Qt::ElideRight, width) : text});
        if (width < wanted)
            break;
        left += width + metrics.horizontalAdvance(separator);
    }
    return placed;
}

}  // namespace wirepane
