// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <functional>

namespace wirepane {

// Cuts a stream of bytes into lines and keeps none that is longer than the limit.
class LineSplitter {
public:
    static constexpr qsizetype longestLine = 16 * 1024 * 1024;  // bytes, without the line feed

    // Calls `line` for every line that `bytes` completes, without "\n" and a "\r" before it; blank lines are
    // passed over. `tooLong` is called once for each line that passes the limit, as soon as it does.
    void feed(const QByteArray& bytes, const std::function<void(const QByteArray&)>& line,
              const std::function<void()>& tooLong);
    // The stream has ended: a line without a line feed counts too.
    void finish(const std::function<void(const QByteArray&)>& line);
    // What is kept of a line whose end has not come.
    qsizetype unfinishedBytes() const { return unfinished.size(); }

private:
    void endLine(const std::function<void(const QByteArray&)>& line);

    QByteArray unfinished;
    bool skipping = false;  // inside a line that was too long
};

}  // namespace wirepane
