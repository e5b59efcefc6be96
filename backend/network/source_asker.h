// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/network/address_secrets.h"
#include "backend/network/http_fetch.h"
#include "backend/network/network_source.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace wirepane {

struct SourceQuestion {
    NetworkSource source;
    SourceSecret secret;
    Validators known;  // of what was read before; empty: all is asked for
};

// What a source has said, its news as it is to be taken: with service, category and canonical link by the
// source's definition, without what is older than it takes.
struct SourceAnswer {
    std::optional<Error> fault;  // why nothing could be read, or what is strange in what was
    bool isAlive = false;        // the other end has answered, whatever it said
    bool isRead = false;         // the answer counts; also where it says that nothing has changed
    bool isUnchanged = false;
    std::vector<SourceItem> items;     // also those that cannot be taken, each with its reason
    int left = 0;                      // news that was too old
    Validators validators;             // none where the answer was not sound as a whole
    std::optional<std::int64_t> wish;  // seconds: not to ask again before
    int milliseconds = 0;
};

// Asks sources. Interface thread.
class SourceAsker {
public:
    using Answered = std::function<void(SourceAnswer)>;

    SourceAsker() = default;
    SourceAsker(const SourceAsker&) = delete;
    SourceAsker& operator=(const SourceAsker&) = delete;
    virtual ~SourceAsker() = default;

    // Calls back once, from the event loop; not any more when the asker is gone. Who asks makes sure that the
    // callback can be made for as long.
    virtual void ask(const SourceQuestion& question, const Answered& answered) = 0;
};

// Over http and https, or from a file. What is asked, decoded and read is so on threads of its own.
class NetworkAsker : public SourceAsker {
public:
    explicit NetworkAsker(const HttpLimits& limits = {});
    ~NetworkAsker() override;

    void ask(const SourceQuestion& question, const Answered& answered) override;

private:
    class Threads;
    std::unique_ptr<Threads> threads;
};

}  // namespace wirepane
