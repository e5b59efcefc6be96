// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/program_source.h"

#include "backend/feed/feed_connection.h"
#include "backend/feed/feed_errors.h"
#include "backend/lines/process_channel.h"

#include <utility>

namespace wirepane {

ProgramSource::ProgramSource(QString name, QString file, QStringList fileArguments)
    : shownName(std::move(name)), program(std::move(file)), arguments(std::move(fileArguments)) {}

ProgramSource::~ProgramSource() = default;

void ProgramSource::poll() {
    if (state().kind == SourceState::Connecting && !channel && taker() != nullptr)
        start();
}

void ProgramSource::start() {
    channel = std::make_unique<ProcessChannel>(program, arguments);
    QObject::connect(channel.get(), &ProcessChannel::stopped, channel.get(), [this](const QString& reason) {
        setState(SourceState::Failed, makeError<feed_errors::programEnded>(program, reason));
    });
    setState(SourceState::Live);
    taker()->addSource(std::make_shared<FeedConnection>(channel.get(), 1));
}

void ProgramSource::setOnline(bool on) {
    channel.reset();
    setState(on ? SourceState::Connecting : SourceState::Offline);
}

}  // namespace wirepane
