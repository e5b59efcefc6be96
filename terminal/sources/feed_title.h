// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace wirepane {

// How an RSS or Atom feed calls itself: one line, of mostFeedTitle characters at most. Empty where its head
// says nothing, or it is no feed. Any thread.
QString feedTitle(const QByteArray& feed);

inline constexpr int mostFeedTitle = 100;

}  // namespace wirepane
