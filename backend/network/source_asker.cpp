// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/source_asker.h"

#include "backend/network/answer_reading.h"
#include "backend/network/source_request.h"
#include "backend/network/stream_reading.h"
#include "backend/network/stream_room.h"
#include "backend/network/web_socket_run.h"
#include "backend/worker_thread.h"
#include "host/contract/clock.h"

#include <map>
#include <utility>

namespace wirepane {

class NetworkAsker::Threads {
public:
    explicit Threads(const HttpLimits& bounds) : limits(bounds) {
        network.run([this] { client = std::make_unique<HttpClient>(limits); });
    }
    // What one thread still has posted to another is dropped before that one goes.
    ~Threads() {
        network.run([this] {
            sockets.clear();
            client.reset();
        });
    }
    Threads(const Threads&) = delete;
    Threads& operator=(const Threads&) = delete;

    void ask(const SourceQuestion& question, const Answered& answered) {
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

    int follow(const SourceQuestion& question, const Answered& answered) {
        const int number = ++lastStream;
        HttpRequest request = requestOf(question.source, question.secret);
        request.known.event = question.known.event;
        const auto calls = callsOf(question, answered);
        network.post([this, number, request, calls, isSocket = isWebSocket(question.source)] {
            if (isSocket)
                sockets[number] = std::make_unique<WebSocketRun>(request, limits, calls.first, calls.second);
            else
                client->follow(number, request, calls.first, calls.second);
        });
        return number;
    }

    void letGo(int number) {
        network.post([this, number] {
            sockets.erase(number);
            client->letGo(number);
        });
    }

private:
    // What a stream has between the threads.
    struct Reading {
        StreamReading reading;
        StreamRoom room;
        bool hasStood = false;  // the reader's thread alone
    };

    // What the network's thread calls.
    std::pair<HttpStream, HttpClient::Answered> callsOf(const SourceQuestion& question,
                                                        const Answered& answered) {
        const auto stream = std::make_shared<Reading>(
            Reading{StreamReading(question.source, question.known.event), StreamRoom()});
        const auto take = [this, stream, answered, isSocket = isWebSocket(question.source)](
                              const QByteArray& part, const std::shared_ptr<void>& room) {
            stream->hasStood = true;
            const std::int64_t now = host_clock::now();
            SourceAnswer answer =
                isSocket ? stream->reading.takeMessage(part, now) : stream->reading.takeBytes(part, now);
            answer.room = room;
            tell(std::move(answer), answered);
        };
        HttpStream calls;
        calls.opened = [this, take] { reader.post([take] { take({}, nullptr); }); };
        calls.part = [this, stream, take](const QByteArray& part) {
            reader.post([take, part, room = stream->room.take(part.size())] { take(part, room); });
        };
        calls.hasRoom = [stream] { return !stream->room.isFull(); };
        return {calls, [this, stream, answered](const HttpAnswer& answer) {
                    reader.post([this, stream, answered, answer] {
                        tell(stream->reading.end(answer, stream->hasStood, host_clock::now()), answered);
                    });
                }};
    }

    // On the reader's thread.
    void read(const NetworkSource& source, const HttpAnswer& answer, const Answered& answered) {
        tell(readAnswer(source, answer, host_clock::now()), answered);
    }
    void tell(SourceAnswer&& answer, const Answered& answered) {
        const auto content = std::make_shared<SourceAnswer>(std::move(answer));
        answers.post([content, answered] { answered(std::move(*content)); });
    }

    HttpLimits limits;
    CallQueue answers;  // on the interface thread
    int lastStream = 0;
    std::unique_ptr<HttpClient> client;                    // on the network's thread
    std::map<int, std::unique_ptr<WebSocketRun>> sockets;  // there, too
    WorkerThread reader;
    WorkerThread network;
};

class NetworkAsker::Following : public SourceStream {
public:
    Following(const std::shared_ptr<Threads>& of, int given) : threads(of), number(given) {}
    ~Following() override {
        if (const auto present = threads.lock())
            present->letGo(number);
    }

private:
    std::weak_ptr<Threads> threads;
    int number;
};

NetworkAsker::NetworkAsker(const HttpLimits& limits) : threads(std::make_shared<Threads>(limits)) {}
NetworkAsker::~NetworkAsker() = default;

void NetworkAsker::ask(const SourceQuestion& question, const Answered& answered) {
    threads->ask(question, answered);
}

std::unique_ptr<SourceStream> NetworkAsker::follow(const SourceQuestion& question, const Answered& answered) {
    return std::make_unique<Following>(threads, threads->follow(question, answered));
}

}  // namespace wirepane
