// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/call_queue.h"
#include "backend/network/secret_store.h"
#include "backend/network/source_asker.h"
#include "backend/worker_thread.h"
#include "terminal/sources/source_trial.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace wirepane {

// Asks over the network as a terminal does, or reads the file that the user typed; what came is read on a
// thread of its own. A stream is followed until it has brought what is shown, for some seconds at most.
class FetchingTrial : public QObject, public SourceTrial {
public:
    // The secrets are not owned and outlive this.
    explicit FetchingTrial(SecretStore& secrets);
    ~FetchingTrial() override;

    void start(const NetworkSource& source, const SourceSecret& secret, const Told& told) override;
    void stop() override;

private:
    void ask(const NetworkSource& source, const SourceSecret& secret);
    void follow(const NetworkSource& source, const SourceSecret& secret);
    void read(const std::function<TrialReport()>& reading);
    void tell(const TrialReport& report);

    SecretStore& secrets;
    Told teller;
    int number = 0;  // of the trial that is under way
    std::unique_ptr<HttpClient> client;
    std::unique_ptr<NetworkAsker> asker;  // of a stream
    std::unique_ptr<SourceStream> stream;
    TrialReport followed;  // what it has said so far
    QTimer listening;
    CallQueue answers;    // on the interface thread
    WorkerThread thread;  // last: it uses the above
};

}  // namespace wirepane
