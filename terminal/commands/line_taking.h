// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_connection.h"
#include "backend/item_sink.h"
#include "backend/lines/standard_channel.h"

#include <QTimer>

#include <functional>

namespace wirepane {

// Where lines from standard input go.
struct LineTarget {
    FeedSink& sink;
    std::function<Result<QString>(const QString& source)> positionOf;
    std::function<bool()> isWorthRetrying;  // after a failure
};

// Takes lines from standard input into a store, a batch whenever nothing more is at hand. Where that fails,
// it is tried again for a minute.
class LineTaking : public QObject, private SourceTaker {
public:
    LineTaking(LineTarget target, StandardChannel& input, unsigned char service,
               FeedConnection::Answers answers);

    // Until the input ends; the exit status of the program.
    int run();

private:
    void sourceReady(FeedSource& source) override;
    void pumpSoon();
    void pump();
    // False: the target cannot be written to, and it is over.
    bool takeNext();

    LineTarget target;
    StandardChannel& channel;
    FeedConnection lines;
    QTimer pumping;
    int retries = 0;
    ImportTotals totals;
    QString failure;
};

void showLineRejection(const QString& place, const QString& reason);
// Says what became of all lines; the exit status.
int endOfLines(StandardChannel& channel, const ImportTotals& totals);

}  // namespace wirepane
