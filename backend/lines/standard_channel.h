// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/lines/line_channel.h"

#include <QSocketNotifier>

namespace wirepane {

// Standard input and output. From its construction on, the process's standard output belongs to the channel
// alone: whatever else writes there lands on standard error.
class StandardChannel : public LineChannel {
    Q_OBJECT

public:
    explicit StandardChannel(QObject* parent = nullptr);
    ~StandardChannel() override;

    void send(const QByteArray& line) override;
    // Why a line did not get there although somebody reads (errno, the first time); 0: all did.
    int writeError() const { return lostBy; }

protected:
    void heldChanged() override;

private:
    void read();

    int output;
    bool hasEnded = false;
    int lostBy = 0;
    QSocketNotifier notifier;
};

}  // namespace wirepane
