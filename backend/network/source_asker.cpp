// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/source_asker.h"

#include "backend/network/answer_reading.h"
#include "backend/network/network_errors.h"
#include "backend/network/source_request.h"
#include "backend/worker_thread.h"
#include "host/contract/clock.h"

namespace wirepane {

class NetworkAsker::Threads {
public:
    explicit Threads(const HttpLimits& bounds) : limits(bounds) {
        network.run([this] { client = std::make_unique<HttpClient>(limits); });
    }
    // What one thread still has posted to another is dropped before that one goes.
    ~Threads() {
        network.run([this] { client.reset(); });
    }
    Threads(const Threads&) = delete;
    Threads& operator=(const Threads&) = delete;

    void ask(const SourceQuestion& question, const Answered& answered) {
        if (isStream(question.source)) {
            HttpAnswer none;
            none.fault = makeError<network_errors::streamsNotRead>();
            reader.post([this, source = question.source, answered, none] { read(source, none, answered); });
            return;
        }
        if (question.source.address.isLocalFile()) {
            reader.post([this, question, answered] {
                const QString path = question.source.address.toLocalFile();
                read(question.source, answerOfFile(path, question.known, limits.body), answered);
            });
            return;
        }
        HttpRequest request = requestOf(question.source, question.secret);
        request.known = question.known;
        network.post([this, request, source = question.source, answered] {
            client->ask(request, [this, source, answered](HttpAnswer answer) {
                reader.post(
                    [this, source, answered, answer = std::move(answer)] { read(source, answer, answered); });
            });
        });
    }

private:
    // On the reader's thread.
    void read(const NetworkSource& source, const HttpAnswer& answer, const Answered& answered) {
        const auto content = std::make_shared<SourceAnswer>(readAnswer(source, answer, host_clock::now()));
        answers.post([content, answered] { answered(std::move(*content)); });
    }

    HttpLimits limits;
    CallQueue answers;  // on the interface thread
    std::unique_ptr<HttpClient> client;
    WorkerThread reader;
    WorkerThread network;
};

NetworkAsker::NetworkAsker(const HttpLimits& limits) : threads(std::make_unique<Threads>(limits)) {}
NetworkAsker::~NetworkAsker() = default;

void NetworkAsker::ask(const SourceQuestion& question, const Answered& answered) {
    threads->ask(question, answered);
}

}  // namespace wirepane
