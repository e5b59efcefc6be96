// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/pane_shares.h"

#include <QStringList>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int whole = 1000;
constexpr int leastShare = 50;
constexpr int leastRoom = 100;  // pixels
constexpr QChar between = u',';

}  // namespace

void PaneShares::set(PaneEdge edge, int share) {
    shares.at(static_cast<std::size_t>(edge)) =
        share == 0 ? 0 : std::clamp(share, leastShare, whole - leastShare);
}

int PaneShares::place(PaneEdge edge, int from, int to, int stated) const {
    if (of(edge) == 0 || to - from < 2 * leastRoom)
        return stated;
    return std::clamp(from + (to - from) * of(edge) / whole, from + leastRoom, to - leastRoom);
}

QString PaneShares::keptText() const {
    QStringList texts;
    for (const int share : shares)
        texts << QString::number(share);
    return texts.join(between);
}

PaneShares PaneShares::restored(const QString& kept) {
    PaneShares shares;
    const QStringList texts = kept.split(between);
    for (int edge = 0; edge < paneEdges; ++edge)
        shares.set(static_cast<PaneEdge>(edge), texts.value(edge).toInt());
    return shares;
}

}  // namespace wirepane
