// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"

#include <QStringList>

#include <memory>

namespace wirepane {
class ProcessChannel;

// A program that writes a feed to its standard output, and is answered on its standard input; what it sends
// is a source of its own, which is handed over when it starts. It runs while the terminal is connected. One
// that ends by itself is not started again before the next outage is over.
class ProgramSource : public FeedSource {
public:
    ProgramSource(QString name, QString program, QStringList arguments);
    ~ProgramSource() override;

    QString name() const override { return shownName; }
    void poll() override;
    void setOnline(bool on) override;

private:
    void start();

    QString shownName;
    QString program;
    QStringList arguments;
    std::unique_ptr<ProcessChannel> channel;
};

}  // namespace wirepane
