// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/line_source.h"

#include <QObject>
#include <QPointer>

namespace wirepane {
class LineChannel;

// A sender at the other end of a channel: its lines are a source, and it is told how far they have been
// taken. Its handshake is answered {"position": TEXT}, the position kept for its source; what is on the disk,
// {"lines": so far, "takenIn": n, "alreadyThere": n, "rejected": n, "rejections": [{"place", "reason"}]}; and
// {"error": TEXT} when the store cannot say.
class FeedConnection : public LineSource {
public:
    enum class Answers { All, None };

    // The channel is not owned; when it goes, the sender is gone. The rest as LineSource has it.
    FeedConnection(LineChannel* channel, unsigned char service, Answers answers = Answers::All);

    void resume(const Result<QString>& position) override;
    // An outage sends the sender off; it may come again as another.
    void setOnline(bool on) override;
    // The sender is gone, and all that it sent has been taken.
    bool isDone() override { return hasEnded && !hasBatch(); }

private:
    void holdWhenFull();
    void answer(const QByteArray& line);

    QObject context;  // of what the channel tells
    QPointer<LineChannel> channel;
    Answers answers;
    bool hasEnded = false;
};

}  // namespace wirepane
