// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/fetching_trial.h"

#include "backend/network/answer_reading.h"
#include "backend/network/source_request.h"
#include "host/contract/clock.h"
#include "terminal/sources/trial_reading.h"

#include <QPointer>

#include <utility>

namespace wirepane {

namespace {

TrialReport failed(const Error& fault) {
    TrialReport report;
    report.fault = fault;
    return report;
}

}  // namespace

FetchingTrial::FetchingTrial(SecretStore& secretStore) : secrets(secretStore) {
    listening.setSingleShot(true);
    connect(&listening, &QTimer::timeout, this, [this] {
        stream.reset();
        asker.reset();
        tell(followed);
    });
}

FetchingTrial::~FetchingTrial() = default;

void FetchingTrial::start(const NetworkSource& source, const SourceSecret& secret, const Told& told) {
    stop();
    teller = told;
    NetworkSource checked = source;
    if (!secret.isEmpty())
        checked.secret = secretToKeep;
    if (const Done sound = checkedSource(checked); !sound) {
        tell(failed(sound.error()));
    } else if (source.address.isLocalFile()) {
        read([source] {
            return readTrial(answerOfFile(source.address.toLocalFile(), {}, HttpLimits().body), source,
                             host_clock::now());
        });
    } else if (secret.isEmpty() && !source.secret.isEmpty()) {
        secrets.find(source.secret,
                     [self = QPointer(this), source, asked = number](const Result<QString>& found) {
                         if (!self || self->number != asked)
                             return;
                         if (found)
                             self->ask(source, SourceSecret::parse(found.value()));
                         else
                             self->tell(failed(found.error()));
                     });
    } else {
        ask(source, secret);
    }
}

void FetchingTrial::stop() {
    ++number;
    teller = {};
    client.reset();
    listening.stop();
    stream.reset();
    asker.reset();
}

void FetchingTrial::ask(const NetworkSource& source, const SourceSecret& secret) {
    if (isStream(source))
        return follow(source, secret);
    client = std::make_unique<HttpClient>();
    client->ask(requestOf(source, secret), [this, source](const HttpAnswer& answer) {
        // Not told from within the client, which whoever is told may end.
        read([answer, source] { return readTrial(answer, source, host_clock::now()); });
    });
}

// Those who are told may end this, so that it is never from within the asker.
void FetchingTrial::follow(const NetworkSource& source, const SourceSecret& secret) {
    constexpr int longestMs = 5000;  // after it stands
    followed = {};
    asker = std::make_unique<NetworkAsker>();
    stream = asker->follow({source, secret, {}}, [this](SourceAnswer answer) {
        const bool isDone = !answer.isOpen;
        addToTrial(followed, std::move(answer));
        if (isDone || followed.items >= static_cast<int>(TrialReport::mostItems))
            listening.start(0);
        else if (!listening.isActive())
            listening.start(longestMs);
    });
}

void FetchingTrial::read(const std::function<TrialReport()>& reading) {
    thread.post([this, reading, asked = number] {
        const auto report = std::make_shared<TrialReport>(reading());
        answers.post([this, report, asked] {
            if (asked == number)
                tell(*report);
        });
    });
}

void FetchingTrial::tell(const TrialReport& report) {
    if (const Told told = std::exchange(teller, {}))
        told(report);
}

}  // namespace wirepane
